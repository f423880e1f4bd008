#pragma once

class QDialog;
class QWidget;

/// Lays a small window out: its content, and its buttons below that. They get the room that they
/// ask for as far as the screen goes. Where it is too small the content is scrolled, and the
/// buttons of a button box stand one above the other. For a window that has everything in it, and
/// no layout.
void layOutSheet(QDialog &sheet, QWidget *content, QWidget *buttons);

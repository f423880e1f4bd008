#pragma once

class QWidget;

/// Shows the dialog's own help, for the parts that no panel has help for.
void showHostHelp(QWidget *parent);

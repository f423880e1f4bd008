#pragma once

#include <QtCore/QString>

class QAbstractButton;
class QTabWidget;
class QWidget;

/// The letters, in upper case, that buttons, labels of controls and tabs in the window answer with
/// Alt; `except` and what is in it left out.
QString mnemonicsIn(const QWidget &window, const QWidget *except = nullptr);

/// The title, which has no mnemonic, with one on a letter that is not taken: the first letter of a
/// word rather than another one. A title without Latin letters gets a letter behind it, as its
/// readers know it. The title itself where no letter is free.
QString withMnemonic(const QString &title, const QString &taken);

/// Titles the button, with a mnemonic that nothing else in its window answers yet.
void setTitleWithMnemonic(QAbstractButton &button, const QString &title);

/// Gives every tab a mnemonic that nothing in the tabs' window answers yet. Their titles have none.
void giveMnemonics(QTabWidget &tabs);

#pragma once

#include <QtCore/QString>

class QAbstractButton;
class QTabWidget;
class QWidget;

/// The letters, in upper case, that buttons, labels of controls and tabs in the window, or on a
/// page of tabs, answer with Alt. Left out are `except` and what is in it, and the pages of tabs in
/// the window: only one of them is there at a time.
QString mnemonicsIn(const QWidget &window, const QWidget *except = nullptr);

/// The same with those on the page of tabs in front, whatever it shows at the moment.
QString mnemonicsInFront(const QWidget &window, const QWidget *except = nullptr);

/// The title, which has no mnemonic, with one on a letter that is not taken: the first letter of a
/// word rather than another one. A title without Latin letters gets a letter behind it, as its
/// readers know it. The title itself where no letter is free.
QString withMnemonic(const QString &title, const QString &taken);

/// Titles a button that stands in its window, with a mnemonic that nothing else there answers yet;
/// the pages of tabs settle for what it leaves.
void setTitleWithMnemonic(QAbstractButton &button, const QString &title);

/// Titles a button that comes and goes, with a mnemonic that the page of tabs in front does not
/// answer either.
void setTitleWithFreeMnemonic(QAbstractButton &button, const QString &title);

/// Gives every tab a mnemonic that nothing in the tabs' window answers yet. Their titles have none.
void giveMnemonics(QTabWidget &tabs);

/// Gives the captions, boxes, buttons and disclosures of a panel's view mnemonics that are not
/// taken; the pages of a stack in it share letters. One whose letters are all given away has none.
/// What a panel reads stays: the texts of labels, and the titles of buttons (buttonTitle()).
void givePanelMnemonics(QWidget &view, const QString &taken);

/// Has the buttons and labels of a page that have mnemonics answer letters of their own, which are
/// not taken: they keep theirs as far as possible.
void settleMnemonics(QWidget &page, const QString &taken);

#pragma once

#include <QtCore/QList>
#include <QtWidgets/QFrame>

#include <functional>

class NoticeLabel;
class NoticeSign;
class QHBoxLayout;
class QMenu;
class QPushButton;

/// What a person can do about what is told, as a button beside it.
struct NoticeOffer
{
    QString name;  ///< of the button
    QString title; ///< plain text, without a mnemonic
    std::function<void()> take;
    /// Ways to choose from, in a menu that the button opens in place of being taken.
    QList<NoticeOffer> menu = {};
};

/// A strip that tells one thing at a time, in plain text: what the dialog waits for, why a choice
/// was refused, what went wrong. It has the room of an ordinary sentence whether or not there is
/// anything to tell, so that nothing moves when there is. What is longer is cut off there, and
/// whole in its tool tip and its accessible name. The titles of offers are broken into lines.
class NoticeBar : public QFrame
{
    Q_OBJECT

public:
    enum class Kind { Information, Warning, Error };

    explicit NoticeBar(QWidget *parent = nullptr);

    void tell(Kind kind, const QString &sentence, const QList<NoticeOffer> &offers = {});
    void clear();

    /// Null while there is nothing to tell.
    QString sentence() const { return m_sentence; }
    Kind kind() const { return m_kind; }

protected:
    void changeEvent(QEvent *event) override;

private:
    void showSentence(const QString &sentence);
    void showOffers(const QList<NoticeOffer> &offers);
    int linesFor(const QString &title) const;
    QPushButton *newButton(const NoticeOffer &offer);
    QMenu *newMenu(const QList<NoticeOffer> &offers, QWidget *parent);
    void applyColors();

    NoticeSign *m_sign;
    NoticeLabel *m_label;
    QHBoxLayout *m_layout;
    QList<QPushButton *> m_buttons; ///< one for each offer
    Kind m_kind = Kind::Information;
    QString m_sentence;
};

#pragma once

#include <QtCore/QList>
#include <QtWidgets/QFrame>

#include <functional>

class NoticeLabel;
class NoticeSign;
class QBoxLayout;
class QGridLayout;
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
/// was refused, what went wrong. It has the room of two lines whether or not there is anything to
/// tell, and becomes higher for a longer sentence, as far as it may. What is longer still is cut
/// off there, and whole in its tool tip and its accessible name. Offers stand beside the sentence,
/// or below it where that would leave it too little room. The titles of offers
/// are broken into lines.
class NoticeBar : public QFrame
{
    Q_OBJECT

public:
    enum class Kind { Information, Warning, Error };

    explicit NoticeBar(QWidget *parent = nullptr);

    void tell(Kind kind, const QString &sentence, const QList<NoticeOffer> &offers = {});
    void clear();

    /// Has the offers answer letters that what is in front now does not answer.
    void settleMnemonics();

    /// How high the sentence may become where two lines are not enough.
    void setMostHeight(int pixels);

    /// Null while there is nothing to tell.
    QString sentence() const { return m_sentence; }
    Kind kind() const { return m_kind; }

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void showSentence(const QString &sentence);
    void showOffers(const QList<NoticeOffer> &offers);
    void exchangeButtons();
    void arrange();
    int linesFor(const QString &title) const;
    QPushButton *newButton(const NoticeOffer &offer);
    void titleButton(QPushButton &button, const QString &title);
    void take(const QPushButton *button);
    QMenu *newMenu(const QList<NoticeOffer> &offers, QWidget *parent);
    void applyColors();

    NoticeSign *m_sign;
    NoticeLabel *m_label;
    QGridLayout *m_grid;
    QWidget *m_offers;
    QBoxLayout *m_offerLine;
    QList<NoticeOffer> m_offered;
    QList<QPushButton *> m_buttons; ///< one for each offer
    bool m_offersAreBeside = true;  ///< the sentence
    Kind m_kind = Kind::Information;
    QString m_sentence;
};

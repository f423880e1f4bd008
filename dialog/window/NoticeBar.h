#pragma once

#include <QtWidgets/QFrame>

class NoticeLabel;
class NoticeSign;
class QPushButton;

/// A strip that tells one thing at a time, in plain text: what the dialog waits for, why a choice
/// was refused, what went wrong. It has the room of an ordinary sentence whether or not there is
/// anything to tell, so that nothing moves when there is. What is longer is cut off there, and
/// whole in its tool tip and its accessible name.
class NoticeBar : public QFrame
{
    Q_OBJECT

public:
    enum class Kind { Information, Warning, Error };
    enum class Offer { Nothing, Retry };

    explicit NoticeBar(QWidget *parent = nullptr);

    void tell(Kind kind, const QString &sentence, Offer offer = Offer::Nothing);
    void clear();

    /// Null while there is nothing to tell.
    QString sentence() const { return m_sentence; }
    Kind kind() const { return m_kind; }

Q_SIGNALS:
    /// The user takes up the offer.
    void retryWanted();

protected:
    void changeEvent(QEvent *event) override;

private:
    void showSentence(const QString &sentence, Offer offer);
    void applyColors();

    NoticeSign *m_sign;
    NoticeLabel *m_label;
    QPushButton *m_retry;
    Kind m_kind = Kind::Information;
    QString m_sentence;
};

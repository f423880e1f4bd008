#pragma once

#include <QtWidgets/QFrame>

class NoticeSign;
class QLabel;

/// A strip that tells one thing at a time, in plain text: what the dialog waits for, why a choice
/// was refused, what went wrong. Hidden while there is nothing to tell.
class NoticeBar : public QFrame
{
    Q_OBJECT

public:
    enum class Kind { Information, Warning, Error };

    explicit NoticeBar(QWidget *parent = nullptr);

    void tell(Kind kind, const QString &sentence);
    void clear();

    /// Null while there is nothing to tell.
    QString sentence() const { return m_sentence; }
    Kind kind() const { return m_kind; }

protected:
    void changeEvent(QEvent *event) override;

private:
    void applyColors();

    NoticeSign *m_sign;
    QLabel *m_label;
    Kind m_kind = Kind::Information;
    QString m_sentence;
};

#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtWidgets/QScrollArea>

class QGridLayout;

/// What one part of the dialog has settled: a heading, and lines of title and value.
struct SummarySection
{
    struct Line
    {
        QString title;
        QString value;
    };

    QString heading;
    QList<Line> lines;
};

/// The section of a panel's summary dictionary: its lines in its display order. A title without a
/// value is passed over.
SummarySection sectionOf(const QString &heading, const QVariantMap &summaryInfo);

/// The summary of the whole job, for reading. All texts are plain.
class SummaryPane : public QScrollArea
{
    Q_OBJECT

public:
    explicit SummaryPane(QWidget *parent = nullptr);
    void setSections(const QList<SummarySection> &sections);

private:
    static QString textOf(const QList<SummarySection> &sections);
    void addSection(QGridLayout *grid, const SummarySection &section);
};

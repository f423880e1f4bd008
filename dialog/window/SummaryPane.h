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
        QString name = {};      ///< of the setting (SettingValues); null: of none
        QString origin = {};    ///< why it has its value, for people; null: nothing is told
        bool isDefault = false; ///< it is what the printer has by itself
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

    /// The whole summary as people would read it out.
    static QString textOf(const QList<SummarySection> &sections);

private:
    void addSection(QGridLayout *grid, const SummarySection &section);
};

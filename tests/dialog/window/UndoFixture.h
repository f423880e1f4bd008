#pragma once

#include "dialog/host/HostSession.h"
#include "dialog/replay/ReplayScript.h"
#include "dialog/replay/ReplaySession.h"
#include "dialog/replay/StateReport.h"
#include "tests/dialog/window/DialogWindowFixture.h"

#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtWidgets/QSpinBox>

/// The dialog with all that its state is told by.
class UndoFixture : public DialogWindowFixture
{
protected:
    void showTab(const QString &name)
    {
        ASSERT_TRUE(m_window->showPart(name)) << name.toStdString();
        QCoreApplication::processEvents();
    }

    void undo() { press(Qt::ControlModifier); }
    void redo() { press(Qt::ControlModifier | Qt::ShiftModifier); }

    /// Without what alerts remember, how often a picture was drawn, and the height of the window
    /// that it has seen last.
    static QJsonObject comparable(const QJsonObject &whole)
    {
        QJsonObject state = whole;
        QJsonObject panels = state[QLatin1String("panels")].toObject();
        for (auto panel = panels.begin(); panel != panels.end(); ++panel) {
            QJsonObject one = panel->toObject();
            QJsonObject picture = one[QLatin1String("picture")].toObject();
            picture.remove(QLatin1String("drawn"));
            one.insert(QLatin1String("picture"), picture);
            QJsonObject content = one[QLatin1String("effectContent")].toObject();
            content.remove(QLatin1String("frameHeight"));
            one.insert(QLatin1String("effectContent"), content);
            *panel = one;
        }
        state.insert(QLatin1String("panels"), panels);
        state.remove(QLatin1String("alertMemory"));
        return state;
    }

    QJsonObject report()
    {
        QJsonObject whole;
        for (const auto &[name, value] : stateReport(m_window->job().session()))
            whole.insert(name, value);
        return comparable(whole);
    }

    /// The whole state of session and job, as a text that differs where they do; without what is
    /// folded.
    std::string state()
    {
        QJsonObject whole = report();
        PrintJob &job = m_window->job();
        const QStringList folds = job.session()->foldStateKeys();
        QJsonArray options;
        for (const JobOption &option : job.options().options)
            if (!folds.contains(option.name))
                options += option.name + u'=' + option.value;
        QJsonObject ticket = whole[QLatin1String("ticket")].toObject();
        for (const QString &fold : folds)
            ticket.remove(fold);
        whole.insert(QLatin1String("ticket"), ticket);
        whole.insert(QLatin1String("options"), options);
        whole.insert(QLatin1String("title"), job.ownTitle());
        whole.insert(QLatin1String("landscape"), job.orientation() == PMOrientation::Landscape);
        whole.insert(QLatin1String("preset"), job.source().queue.instance);
        return QJsonDocument(whole).toJson().toStdString();
    }

    /// The state after the last event of the recording but the one that closes it.
    QJsonObject replayed()
    {
        ReplaySession replay;
        QJsonObject last;
        QFile file(m_line.record);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        QList<QByteArray> lines;
        while (!file.atEnd())
            lines += file.readLine();
        for (const QByteArray &line : lines.first(lines.size() - 1)) {
            const auto event = readReplayLine(line, QDir(m_folder.path()));
            EXPECT_EQ(event.sentence(), QString());
            last = QJsonDocument::fromJson(*replay.run(**event)).object();
            EXPECT_FALSE(last.contains(QLatin1String("error")));
        }
        QJsonObject state;
        for (const QLatin1String name : {QLatin1String("panels"), QLatin1String("marks"),
                                         QLatin1String("ticket"), QLatin1String("alertMemory")})
            state.insert(name, last[name]);
        return comparable(state);
    }

private:
    void press(Qt::KeyboardModifiers modifiers)
    {
        m_window->activateWindow(); // an alert may have had the keys
        EXPECT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
        QTest::keyClick(m_window.get(), Qt::Key_Z, modifiers);
        QCoreApplication::processEvents();
    }
};

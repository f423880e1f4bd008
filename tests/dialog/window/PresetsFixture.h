#pragma once

#include "tests/dialog/window/DialogWindowFixture.h"

#include <QtCore/QTimer>
#include <QtGui/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include <functional>

/// The dialog with the presets of a queue; the printer itself is a PPD file.
class PresetsFixture : public DialogWindowFixture
{
protected:
    PresetsFixture() { m_line.queue = QStringLiteral("photo"); }

    /// Two sessions at once would hear of each other.
    void open()
    {
        m_window.reset();
        DialogWindowFixture::open();
    }

    QStringList offered()
    {
        QStringList titles;
        auto *popup = part<PopUpButton>("presetPopup");
        for (int index = 0; index < popup->count(); ++index)
            titles += popup->itemText(index);
        return titles;
    }

    QString current() { return part<PopUpButton>("presetPopup")->currentText(); }

    void choose(const QString &title)
    {
        auto *popup = part<PopUpButton>("presetPopup");
        const int index = popup->findText(title);
        ASSERT_GE(index, 0) << title.toStdString();
        popup->pick(index);
        waitForPrinter();
    }

    /// Triggers the menu's action and answers the window that it opens.
    void act(const char *action, const std::function<void(QWidget *)> &answer = {})
    {
        bool isAnswered = !answer;
        if (answer)
            QTimer::singleShot(0, m_window.get(), [&] {
                isAnswered = true;
                answer(QApplication::activeModalWidget());
            });
        part<QAction>(action)->trigger();
        EXPECT_TRUE(isAnswered);
        waitForPrinter();
    }

    /// Types the name and presses OK, or Escape where OK cannot be pressed.
    static std::function<void(QWidget *)> name(const QString &name, QString *validation = nullptr)
    {
        return [name, validation](QWidget *dialog) {
            ASSERT_NE(dialog, nullptr);
            auto *field = dialog->findChild<QLineEdit *>(QStringLiteral("presetName"));
            field->clear();
            QTest::keyClicks(field, name);
            if (validation)
                *validation =
                    dialog->findChild<QLabel *>(QStringLiteral("presetNameValidation"))->text();
            auto *ok = dialog->findChild<QPushButton *>(QStringLiteral("presetNameOK"));
            if (ok->isEnabled())
                QTest::mouseClick(ok, Qt::LeftButton);
            else
                QTest::keyClick(dialog, Qt::Key_Escape);
        };
    }

    static std::function<void(QWidget *)> press(const QString &title)
    {
        return [title](QWidget *dialog) {
            ASSERT_NE(dialog, nullptr);
            for (auto *button : dialog->findChildren<QPushButton *>())
                if (button->text() == title)
                    return QTest::mouseClick(button, Qt::LeftButton);
            ADD_FAILURE() << title.toStdString();
            static_cast<QDialog *>(dialog)->reject();
        };
    }
};

#pragma once

#include <QtCore/QString>
#include <QtWidgets/QApplication>

/// A program that paints pictures of README, in the user's language and without a display. It is
/// called with the folder of the pictures and the language in their names.
class PictureProgram
{
public:
    /// Ends the program where it is called otherwise. Before anything of Qt.
    PictureProgram(int &argc, char **argv);

    /// The path of the picture of that name.
    QString path(const QString &name) const;

private:
    QApplication m_application;
    QString m_folder;
    QString m_language;
};

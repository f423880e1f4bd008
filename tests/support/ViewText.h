#pragma once

#include "tests/support/Files.h"

#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

/// A view resource with this text between the root widget's tags, in a file of its own.
class ViewText
{
public:
    explicit ViewText(const QByteArray &widgets)
        : ViewText(QByteArray("<ui version=\"4.0\"><widget class=\"QWidget\" name=\"Root\">") +
                       widgets + "</widget></ui>",
                   QStringLiteral("View.ui"))
    {}

    /// A file with exactly this text.
    ViewText(const QByteArray &text, const QString &name)
    {
        m_path = m_folder.filePath(name);
        writeFile(m_path, text);
    }

    const QString &path() const { return m_path; }

private:
    QTemporaryDir m_folder;
    QString m_path;
};

/// A widget of a view resource, with dynamic properties "name=value".
inline QByteArray viewWidget(const QByteArray &className, const QByteArray &name,
                             const QList<QByteArray> &properties = {},
                             const QByteArray &inside = {})
{
    QByteArray text = "<widget class=\"" + className + "\" name=\"" + name + "\">";
    for (const QByteArray &property : properties) {
        const qsizetype split = property.indexOf('=');
        text += "<property name=\"" + property.left(split) + "\" stdset=\"0\"><string>" +
                property.mid(split + 1) + "</string></property>";
    }
    return text + inside + "</widget>";
}

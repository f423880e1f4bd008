#include "bench/support/PictureProgram.h"

#include "bench/support/EndWith.h"
#include "dialog/program/Translations.h"

using namespace Qt::StringLiterals;

namespace {

int &withoutDisplay(int &argc)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return argc;
}

} // namespace

PictureProgram::PictureProgram(int &argc, char **argv) : m_application(withoutDisplay(argc), argv)
{
    const QStringList words = QCoreApplication::arguments();
    if (words.size() != 3)
        endWith(u"Call it with a folder and a language."_s);
    m_folder = words[1];
    m_language = words[2];
    QApplication::setStyle(u"Fusion"_s);
    installTranslations();
}

QString PictureProgram::path(const QString &name) const
{
    return u"%1/%2-%3.png"_s.arg(m_folder, name, m_language);
}

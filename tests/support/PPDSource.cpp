#include "tests/support/PPDSource.h"

#include <QtCore/QTemporaryFile>

#include <gtest/gtest.h>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

QString withText(const QString &nameAndText)
{
    return nameAndText.contains(u'/') ? nameAndText : nameAndText + u'/' + nameAndText;
}

QString nameOf(const QString &nameAndText)
{
    return nameAndText.section(u'/', 0, 0);
}

} // namespace

PPDSource::PPDSource() : m_modelName(u"Velkaro Test"_s) {}

PPDSource &PPDSource::modelName(const QString &name)
{
    m_modelName = name;
    return *this;
}

PPDSource &PPDSource::modelNumber(int number)
{
    return attribute(u"cupsModelNumber"_s, QString::number(number));
}

PPDSource &PPDSource::attribute(const QString &keyword, const QString &value)
{
    m_body += u"*%1: \"%2\"\n"_s.arg(keyword, value);
    return *this;
}

PPDSource &PPDSource::option(const QString &option, const QStringList &choices)
{
    const QString keyword = nameOf(option);
    m_body += u"*OpenUI *%1: PickOne\n"_s.arg(withText(option));
    m_body += u"*Default%1: %2\n"_s.arg(keyword, nameOf(choices.value(0)));
    for (const QString &choice : choices)
        m_body += u"*%1 %2: \"\"\n"_s.arg(keyword, withText(choice));
    m_body += u"*CloseUI: *%1\n"_s.arg(keyword);
    return *this;
}

PPDHandle PPDSource::open() const
{
    QTemporaryFile file;
    if (!file.open())
        return {};
    const QString head = u"*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
                         "*LanguageVersion: English\n*LanguageEncoding: UTF-8\n"
                         "*PCFileName: \"TEST.PPD\"\n*Manufacturer: \"Velkaro\"\n"
                         "*Product: \"(Test)\"\n*PSVersion: \"(3010.000) 0\"\n"
                         "*ModelName: \"%1\"\n*ShortNickName: \"%1\"\n*NickName: \"%1, 1.0\"\n"_s;
    file.write((head.arg(m_modelName) + m_body).toUtf8());
    file.flush();
    OpenedPPD opened = openPPD(file.fileName());
    EXPECT_TRUE(opened.ppd) << qPrintable(opened.error);
    return std::move(opened.ppd);
}

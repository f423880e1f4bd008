// Every input in corpus/ once through its harness: what fuzzing and attacks have found stays
// mended.
#include "tests/fuzz/Harnesses.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtWidgets/QApplication>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

struct Input
{
    Harness harness;
    QString path;
};

void PrintTo(const Input &input, std::ostream *out)
{
    *out << qPrintable(input.path);
}

std::vector<Input> inputs()
{
    std::vector<Input> found;
    for (const Harness &harness : kHarnesses) {
        const QDir folder(QStringLiteral(CORPUS_FOLDER "/") + QLatin1String(harness.name));
        for (const QString &name : folder.entryList(QDir::Files, QDir::Name))
            found.push_back({harness, folder.filePath(name)});
    }
    return found;
}

std::string nameOf(const testing::TestParamInfo<Input> &input)
{
    std::string name =
        QDir(QStringLiteral(CORPUS_FOLDER)).relativeFilePath(input.param.path).toStdString();
    std::ranges::replace_if(
        name, [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
    return name;
}

class Corpus : public testing::TestWithParam<Input>
{};

} // namespace

TEST_P(Corpus, RunsThroughItsHarness)
{
    QFile file(GetParam().path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    GetParam().harness.run(file.readAll());
}

INSTANTIATE_TEST_SUITE_P(Inputs, Corpus, testing::ValuesIn(inputs()), nameOf);

TEST(CorpusFolders, HoldInputsForEveryHarness)
{
    for (const Harness &harness : kHarnesses)
        EXPECT_FALSE(
            QDir(QStringLiteral(CORPUS_FOLDER "/") + QLatin1String(harness.name)).isEmpty())
            << harness.name;
}

int main(int argc, char **argv)
{
    prepareEnvironment();
    const QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

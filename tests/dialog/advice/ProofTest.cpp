// A fixed hundred of the cases of bench-why-proof: what is said of choices that are not to be had,
// held against trying everything.
#include "tests/adviceproof/AdviceProof.h"
#include "tests/adviceproof/ConstrainedPrinter.h"
#include "tests/built/BuiltFiles.h"
#include "tests/support/Files.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLongestWalk = 3;
constexpr int kMadeUpPrinters = 80;
constexpr int kStatesOfSamples = 20;

/// What is said of one choice by chance.
void expectTrue(const ProofState &state, quint32 seed)
{
    QSet<QByteArray> seen;
    for (const Proof &proof : proofsIn(state, {1, seed, 1, false}, seen)) {
        const std::string sentence = proof.advice.sentence.toStdString();
        EXPECT_NE(proof.advice.outcome, Advice::Outcome::Unknown) << sentence;
        EXPECT_EQ(proof.isGiven, proof.advice.outcome == Advice::Outcome::Possible) << sentence;
        EXPECT_EQ(proof.tried > 0, proof.advice.remedies.value(0).changes.size() != 1) << sentence;
        EXPECT_EQ(proof.smaller, QList<PPDMark>()) << sentence;
        EXPECT_EQ(proof.unlike, QList<PPDMark>()) << sentence;
    }
}

class WhatIsSaid : public testing::TestWithParam<int>
{
protected:
    quint32 seed() const { return static_cast<quint32>(GetParam()); }
};

using OfAMadeUpPrinter = WhatIsSaid;

TEST_P(OfAMadeUpPrinter, IsTrue)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"printer.ppd"_s);
    Random random(seed(), 2);
    writeFile(path, constrainedPrinter(random));
    expectTrue({path, randomWalk(path, seed(), kLongestWalk)}, seed());
}

INSTANTIATE_TEST_SUITE_P(, OfAMadeUpPrinter, testing::Range(0, kMadeUpPrinters));

using OfASample = WhatIsSaid;

TEST_P(OfASample, IsTrue)
{
    const QStringList samples{u"velkaro-px-t900"_s, u"velkaro-mx-j710dw"_s, u"velkaro-px-330c"_s};
    const QString path = samplePPD(samples[GetParam() % samples.size()]);
    expectTrue({path, randomWalk(path, seed(), kLongestWalk)}, seed());
}

INSTANTIATE_TEST_SUITE_P(, OfASample, testing::Range(0, kStatesOfSamples));

} // namespace

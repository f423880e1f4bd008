#include "platform/toolkit/RadioMatrix.h"

#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QRadioButton>

using namespace Qt::StringLiterals;

namespace {

class RadioMatrixTest : public testing::Test
{
protected:
    void fill(const QStringList &objects)
    {
        matrix.setNumberOfRows(static_cast<int>(objects.size()));
        for (int row = 0; row < objects.size(); ++row)
            matrix.setCell(row, u"Title of "_s + objects[row], objects[row]);
    }

    QStringList objects() const
    {
        QStringList all;
        for (int row = 0; row < matrix.numberOfRows(); ++row)
            all << matrix.representedObject(row);
        return all;
    }

    QRadioButton *button(int row) { return matrix.findChildren<QRadioButton *>()[row]; }

    RadioMatrix matrix;
};

TEST_F(RadioMatrixTest, HasNoRowsAndNoSelectionAtFirst)
{
    EXPECT_EQ(matrix.numberOfRows(), 0);
    EXPECT_EQ(matrix.selectedRow(), -1);
    EXPECT_TRUE(matrix.selectedObject().isNull());
}

TEST_F(RadioMatrixTest, AddsRowsAtTheEndAndTakesThemFromThere)
{
    fill({u"a"_s, u"b"_s, u"c"_s});
    matrix.setNumberOfRows(2);
    EXPECT_EQ(objects(), (QStringList{u"a"_s, u"b"_s}));
    matrix.setNumberOfRows(3);
    EXPECT_TRUE(matrix.representedObject(2).isNull());
    matrix.setNumberOfRows(-1);
    EXPECT_EQ(matrix.numberOfRows(), 0);
}

TEST_F(RadioMatrixTest, RemovesARowFromTheMiddle)
{
    fill({u"a"_s, u"b"_s, u"c"_s});
    matrix.removeRow(1);
    matrix.removeRow(7);
    matrix.removeRow(-1);
    EXPECT_EQ(objects(), (QStringList{u"a"_s, u"c"_s}));
}

TEST_F(RadioMatrixTest, KeepsTheSelectionWhenAnotherRowGoes)
{
    fill({u"a"_s, u"b"_s, u"c"_s});
    matrix.selectObject(u"c"_s);
    matrix.removeRow(1);
    EXPECT_EQ(matrix.selectedObject(), u"c"_s);
    EXPECT_EQ(matrix.selectedRow(), 1);
}

TEST_F(RadioMatrixTest, HasNoSelectionWhenTheSelectedRowGoes)
{
    fill({u"a"_s, u"b"_s});
    matrix.selectObject(u"b"_s);
    matrix.removeRow(1);
    EXPECT_EQ(matrix.selectedRow(), -1);
}

struct SelectCase
{
    const char *behaviour;
    QString object;
    int row;
};

class Select : public RadioMatrixTest, public testing::WithParamInterface<SelectCase>
{};

const SelectCase kSelectCases[] = {
    {"ByItsObject", u"Vivid"_s, 1},
    {"TheFirstOfTwo", u"Twice"_s, 2},
    {"NotByItsTitle", u"Title of Vivid"_s, -1},
    {"NotByAnotherCase", u"vivid"_s, -1},
    {"NotByAMissingString", QString(), -1},
};

TEST_P(Select, SelectsTheFirstCellWithTheObject)
{
    fill({u"Natural"_s, u"Vivid"_s, u"Twice"_s, u"Twice"_s});
    EXPECT_EQ(matrix.selectObject(GetParam().object), GetParam().row >= 0);
    EXPECT_EQ(matrix.selectedRow(), GetParam().row);
}

INSTANTIATE_TEST_SUITE_P(Cases, Select, testing::ValuesIn(kSelectCases), CaseName());

TEST_F(RadioMatrixTest, NeverTakesACellWithoutObjectForAMissingString)
{
    matrix.setNumberOfRows(2);
    EXPECT_FALSE(matrix.selectObject(QString()));
    EXPECT_EQ(matrix.selectedRow(), -1);
}

TEST_F(RadioMatrixTest, SelectsOneCellAtMost)
{
    fill({u"a"_s, u"b"_s});
    matrix.selectObject(u"a"_s);
    matrix.selectObject(u"b"_s);
    EXPECT_FALSE(button(0)->isChecked());
    EXPECT_TRUE(button(1)->isChecked());
}

TEST_F(RadioMatrixTest, ShowsTitlesAsTheyAre)
{
    matrix.setNumberOfRows(1);
    matrix.setCell(0, u"<b>Black</b> & White"_s, u"Mono"_s);
    EXPECT_EQ(matrix.title(0), u"<b>Black</b> & White"_s);
    EXPECT_EQ(button(0)->text(), u"<b>Black</b> && White"_s);
    EXPECT_TRUE(matrix.title(1).isNull());
}

TEST_F(RadioMatrixTest, SaysAClickAlsoOnTheSelectedCell)
{
    fill({u"a"_s, u"b"_s});
    matrix.show();
    QSignalSpy clicks(&matrix, &RadioMatrix::cellClicked);
    QTest::mouseClick(button(1), Qt::LeftButton, {}, QPoint(5, button(1)->height() / 2));
    QTest::mouseClick(button(1), Qt::LeftButton, {}, QPoint(5, button(1)->height() / 2));
    matrix.pick(0);
    matrix.pick(7);
    EXPECT_EQ(clicks.size(), 3);
    EXPECT_EQ(matrix.selectedObject(), u"a"_s);
}

TEST_F(RadioMatrixTest, KeepsItsOnlyCellSelectedWhenItIsClickedAgain)
{
    fill({u"a"_s, u"b"_s});
    matrix.removeRow(1);
    matrix.selectObject(u"a"_s);
    QSignalSpy clicks(&matrix, &RadioMatrix::cellClicked);
    matrix.pick(0);
    EXPECT_EQ(clicks.size(), 1);
    EXPECT_EQ(matrix.selectedObject(), u"a"_s);
}

TEST_F(RadioMatrixTest, SaysAPickWithTheArrowKeys)
{
    fill({u"a"_s, u"b"_s});
    matrix.selectObject(u"a"_s);
    matrix.show();
    matrix.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&matrix));
    button(0)->setFocus();
    QSignalSpy clicks(&matrix, &RadioMatrix::cellClicked);
    QTest::keyClick(button(0), Qt::Key_Down);
    EXPECT_EQ(clicks.size(), 1);
    EXPECT_EQ(matrix.selectedObject(), u"b"_s);
}

TEST_F(RadioMatrixTest, SaysNothingOfWhatTheProgramDoes)
{
    QSignalSpy clicks(&matrix, &RadioMatrix::cellClicked);
    fill({u"a"_s, u"b"_s});
    matrix.selectObject(u"b"_s);
    matrix.removeRow(1);
    EXPECT_TRUE(clicks.isEmpty());
}

TEST_F(RadioMatrixTest, TakesItsRowsFromAViewResource)
{
    matrix.setProperty("rows", 5);
    EXPECT_EQ(matrix.numberOfRows(), 5);
}

} // namespace

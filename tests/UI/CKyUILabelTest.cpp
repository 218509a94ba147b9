#include "UI/CKyUILabel.h"
#include "UI/CKyUIVerticalLayout.h"
#include "UI/Impl/CKyUILabelImpl.h"

#include <gtest/gtest.h>

#include <QtCore/QObject>
#include <QtGui/QPixmap>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>

namespace
{
QLabel* LabelOf(const CKyUILabel& label)
{
    return qobject_cast<QLabel*>(label.getHandle());
}

QIcon SquareIcon(int side)
{
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::red);
    return QIcon(pixmap);
}
} // namespace

TEST(CKyUILabelTest, CreatesAPlainLabelWithAnEmptyRuleOfItsClass)
{
    CKyUILabel label;
    QLabel* widget = LabelOf(label);
    ASSERT_NE(widget, nullptr);
    EXPECT_STREQ(widget->metaObject()->className(), "QLabel");
    EXPECT_EQ(widget->parentWidget(), nullptr);
    EXPECT_EQ(widget->styleSheet(), "QLabel { }");
    EXPECT_TRUE(label.text().isEmpty());
    EXPECT_FALSE(label.wordWrap());
}

TEST(CKyUILabelTest, FontSizeThenBoldLandInsideTheRuleInCallOrder)
{
    CKyUILabel label;
    label.setFontSize(14);
    label.setBoldText(true);
    EXPECT_EQ(LabelOf(label)->styleSheet(), "QLabel { font-size:14px;font-weight: bold;}");
}

TEST(CKyUILabelTest, SizesWithoutZeroAreReplacedAndSizesWithZeroAccumulate)
{
    CKyUILabel same;
    same.setFontSize(12);
    same.setFontSize(12);
    EXPECT_EQ(LabelOf(same)->styleSheet(), "QLabel { font-size:12px;}");

    CKyUILabel ten;
    ten.setFontSize(10);
    ten.setFontSize(12);
    EXPECT_EQ(LabelOf(ten)->styleSheet(), "QLabel { font-size:10px;font-size:12px;}");
    ten.setFontSize(13);
    EXPECT_EQ(LabelOf(ten)->styleSheet(), "QLabel { font-size:10px;font-size:13px;}");

    // The minus sign is outside the pattern as well.
    CKyUILabel negative;
    negative.setFontSize(-3);
    negative.setFontSize(9);
    EXPECT_EQ(LabelOf(negative)->styleSheet(), "QLabel { font-size:-3px;font-size:9px;}");
}

TEST(CKyUILabelTest, BoldIsReplacedAndNormalIsWrittenOnAFreshLabel)
{
    CKyUILabel fresh;
    fresh.setBoldText(false);
    EXPECT_EQ(LabelOf(fresh)->styleSheet(), "QLabel { font-weight: normal;}");

    CKyUILabel toggled;
    toggled.setBoldText(true);
    toggled.setBoldText(false);
    EXPECT_EQ(LabelOf(toggled)->styleSheet(), "QLabel { font-weight: normal;}");

    // Unlike the push button's pattern, digits 1 to 9 match here: 600 does
    // not (it holds zeros), 9 does.
    CKyUILabel numeric;
    LabelOf(numeric)->setStyleSheet("QLabel { font-weight: 600; } QLabel:hover { font-weight: 9; }");
    numeric.setBoldText(true);
    EXPECT_EQ(LabelOf(numeric)->styleSheet(),
              "QLabel { font-weight: 600; } QLabel:hover {  font-weight: bold;}");

    CKyUILabel braceless;
    LabelOf(braceless)->setStyleSheet("color: red;");
    braceless.setFontSize(11);
    EXPECT_EQ(LabelOf(braceless)->styleSheet(), "color: red;font-size:11px;");
}

TEST(CKyUILabelTest, ClearEmptiesTheTextAndKeepsTheStoredIcon)
{
    CKyUILabel label;
    label.setText("Name");
    EXPECT_EQ(LabelOf(label)->text(), "Name");
    const QIcon icon = SquareIcon(16);
    label.setIcon(icon);
    ASSERT_NE(LabelOf(label)->pixmap(), nullptr);

    label.clear();
    EXPECT_TRUE(label.text().isEmpty());
    EXPECT_TRUE(LabelOf(label)->text().isEmpty());
    // The record still holds the icon, although the widget shows nothing.
    auto* impl = static_cast<CKyUILabelImpl*>(label.impl());
    EXPECT_EQ(impl->Icon().cacheKey(), icon.cacheKey());

    // The implementation's own clear() drops both.
    label.setIcon(icon);
    label.setText("Name");
    impl->clear();
    EXPECT_TRUE(impl->Icon().isNull());
    EXPECT_TRUE(label.text().isEmpty());
    EXPECT_TRUE(LabelOf(label)->text().isEmpty());
    EXPECT_TRUE(LabelOf(label)->pixmap() == nullptr || LabelOf(label)->pixmap()->isNull());
}

TEST(CKyUILabelTest, IconsAreShownAtMostTwentyFivePixelsSquare)
{
    CKyUILabel large;
    large.setIcon(SquareIcon(64));
    ASSERT_NE(LabelOf(large)->pixmap(), nullptr);
    EXPECT_EQ(LabelOf(large)->pixmap()->size(), QSize(25, 25));

    CKyUILabel small;
    small.setIcon(SquareIcon(16));
    ASSERT_NE(LabelOf(small)->pixmap(), nullptr);
    EXPECT_EQ(LabelOf(small)->pixmap()->size(), QSize(16, 16));
}

TEST(CKyUILabelTest, WordWrapAndToolTipReachTheWidgetAndAreRecorded)
{
    CKyUILabel label;
    label.setWordWrap(true);
    EXPECT_TRUE(label.wordWrap());
    EXPECT_TRUE(LabelOf(label)->wordWrap());
    label.setWordWrap(false);
    EXPECT_FALSE(label.wordWrap());
    EXPECT_FALSE(LabelOf(label)->wordWrap());

    label.setToolTip("Length in mm");
    EXPECT_EQ(LabelOf(label)->toolTip(), "Length in mm");
}

TEST(CKyUILabelTest, WithoutALabelHandleValuesAreStillRecorded)
{
    CKyUILabel label;
    QLabel* widget = LabelOf(label);
    QObject stranger;
    label.setHandle(&stranger);

    label.setText("kept");
    label.setWordWrap(true);
    label.setFontSize(14);
    label.setBoldText(true);
    label.setIcon(SquareIcon(8));
    EXPECT_EQ(label.text(), "kept");
    EXPECT_TRUE(label.wordWrap());
    EXPECT_TRUE(widget->text().isEmpty());
    EXPECT_EQ(widget->styleSheet(), "QLabel { }");

    label.setHandle(widget);
}

TEST(CKyUILabelTest, LabelsJoinALayoutLikeAnyView)
{
    CKyUIVerticalLayout column;
    auto* label = new CKyUILabel;
    column.addView(label);
    EXPECT_EQ(label->parent(), &column);
    EXPECT_EQ(LabelOf(*label)->parentWidget(), column.getHandle());
}

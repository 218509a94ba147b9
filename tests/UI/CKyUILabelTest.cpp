#include "UI/CKyUILabel.h"
#include "UI/Impl/CKyUILabelImpl.h"

#include <gtest/gtest.h>

#include <QtCore/QObject>
#include <QtGui/QPixmap>
#include <QtWidgets/QLabel>

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
    label.setWordWrap(true);
    EXPECT_TRUE(widget->wordWrap());
    label.setText("Length");
    EXPECT_EQ(widget->text(), "Length");
}

TEST(CKyUILabelTest, ClearEmptiesTheTextAndKeepsTheStoredIcon)
{
    CKyUILabel label;
    label.setText("Name");
    const QIcon icon = SquareIcon(16);
    label.setIcon(icon);

    label.clear();
    EXPECT_TRUE(label.text().isEmpty());
    EXPECT_TRUE(LabelOf(label)->text().isEmpty());
    auto* impl = static_cast<CKyUILabelImpl*>(label.impl());
    EXPECT_EQ(impl->Icon().cacheKey(), icon.cacheKey());

    // The implementation's own clear() drops both.
    label.setIcon(icon);
    label.setText("Name");
    impl->clear();
    EXPECT_TRUE(impl->Icon().isNull());
    EXPECT_TRUE(label.text().isEmpty());
    EXPECT_TRUE(LabelOf(label)->pixmap(Qt::ReturnByValue).isNull());
}

TEST(CKyUILabelTest, IconsAreShownAtMostTwentyFivePixelsSquare)
{
    CKyUILabel large;
    large.setIcon(SquareIcon(64));
    EXPECT_EQ(LabelOf(large)->pixmap(Qt::ReturnByValue).size(), QSize(25, 25));

    CKyUILabel small;
    small.setIcon(SquareIcon(16));
    EXPECT_EQ(LabelOf(small)->pixmap(Qt::ReturnByValue).size(), QSize(16, 16));
}

TEST(CKyUILabelTest, WithoutALabelHandleValuesAreStillRecorded)
{
    CKyUILabel label;
    QLabel* widget = LabelOf(label);
    QObject stranger;
    label.setHandle(&stranger);
    label.setText("kept");
    label.setFontSize(14);
    EXPECT_EQ(label.text(), "kept");
    EXPECT_TRUE(widget->text().isEmpty());
    EXPECT_EQ(widget->styleSheet(), "QLabel { }");
    label.setHandle(widget);
}

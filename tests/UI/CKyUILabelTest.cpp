#include "UI/CKyUILabel.h"
#include "UI/Impl/CKyUILabelImpl.h"
#include "support/TestViews.h"

#include <gtest/gtest.h>

#include <QtCore/QObject>
#include <QtGui/QPixmap>
#include <QtWidgets/QLabel>

#include <utility>

namespace
{
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
    QLabel* widget = HandleAs<QLabel>(label);
    ASSERT_NE(widget, nullptr);
    EXPECT_STREQ(widget->metaObject()->className(), "QLabel");
    EXPECT_EQ(widget->parentWidget(), nullptr);
    EXPECT_EQ(widget->styleSheet(), "QLabel { }");
    label.setWordWrap(true);
    EXPECT_TRUE(widget->wordWrap());
    label.setText("Length");
    EXPECT_EQ(widget->text(), "Length");

    // Icons are shown at most twenty-five pixels square.
    const std::pair<int, int> sides[] = {{64, 25}, {16, 16}};
    for (const auto& side : sides) {
        label.setIcon(SquareIcon(side.first));
        EXPECT_EQ(widget->pixmap(Qt::ReturnByValue).size(), QSize(side.second, side.second));
    }
}

TEST(CKyUILabelTest, ClearEmptiesTheTextAndKeepsTheStoredIconValuesAreRecordedWithoutALabel)
{
    CKyUILabel label;
    label.setText("Name");
    const QIcon icon = SquareIcon(16);
    label.setIcon(icon);

    label.clear();
    EXPECT_TRUE(label.text().isEmpty());
    EXPECT_TRUE(HandleAs<QLabel>(label)->text().isEmpty());
    auto* impl = static_cast<CKyUILabelImpl*>(label.impl());
    EXPECT_EQ(impl->Icon().cacheKey(), icon.cacheKey());

    // The implementation's own clear() drops both.
    label.setIcon(icon);
    label.setText("Name");
    impl->clear();
    EXPECT_TRUE(impl->Icon().isNull());
    EXPECT_TRUE(label.text().isEmpty());
    QLabel* widget = HandleAs<QLabel>(label);
    EXPECT_TRUE(widget->pixmap(Qt::ReturnByValue).isNull());

    // Without a label behind it, values are still recorded.
    QObject stranger;
    label.setHandle(&stranger);
    label.setText("kept");
    label.setFontSize(14);
    EXPECT_EQ(label.text(), "kept");
    EXPECT_TRUE(widget->text().isEmpty());
    EXPECT_EQ(widget->styleSheet(), "QLabel { }");
    label.setHandle(widget);
}

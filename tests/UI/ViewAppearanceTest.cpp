#include "support/TestViews.h"

#include <gtest/gtest.h>

#include <QtWidgets/QFrame>

namespace
{
// A frame with a given sheet, and the view that styles it.
struct StyledFrame {
    explicit StyledFrame(const QString& sheet)
        : frame(new QFrame)
        , view(frame)
    {
        frame->setStyleSheet(sheet);
    }
    QString sheet() const { return frame->styleSheet(); }

    QFrame* frame;
    HandleView view;
};

QPalette PaletteWith(QPalette::ColorRole role, const QColor& color)
{
    QPalette palette;
    palette.setBrush(QPalette::Active, role, color);
    palette.setBrush(QPalette::Inactive, role, color);
    palette.setBrush(QPalette::Disabled, role, color);
    return palette;
}
} // namespace

TEST(ViewAppearanceTest, BorderWidthOnEmptyAndBracedSheets)
{
    StyledFrame empty("");
    empty.view.setBorderWidth(2);
    EXPECT_EQ(empty.sheet(), "border-style:solid;border-width:2px;");

    StyledFrame shorthand("QFrame{border: 1px solid red;}");
    shorthand.view.setBorderWidth(3);
    EXPECT_EQ(shorthand.sheet(), "QFrame{border-style:solid;border-width:3px;}");

    StyledFrame fractional("QFrame { }");
    fractional.view.setBorderWidth(1.5f);
    EXPECT_EQ(fractional.sheet(), "QFrame { border-style:solid;border-width:1.5px;}");
}

TEST(ViewAppearanceTest, BorderWidthsAccumulateAndZerosAreNeverMatched)
{
    StyledFrame twice("");
    twice.view.setBorderWidth(1);
    twice.view.setBorderWidth(2);
    EXPECT_EQ(twice.sheet(), "border-width:1px;border-style:solid;border-width:2px;");

    StyledFrame zero("border: 0px;");
    zero.view.setBorderWidth(4);
    EXPECT_EQ(zero.sheet(), "border: 0px;border-style:solid;border-width:4px;");

    StyledFrame negative("");
    negative.view.setBorderWidth(-1);
    EXPECT_EQ(negative.sheet(), "border-style:solid;border-width:-1px;");
}

TEST(ViewAppearanceTest, FourBorderWidthsInParameterOrder)
{
    StyledFrame frame("QFrame { border-left-style: dashed; border-top-width: 7px; border-left-width:0px; }");
    frame.view.setBorderWidth(1.5f, 2, 0, 4);
    EXPECT_EQ(frame.sheet(),
              "QFrame {   border-left-width:0px; "
              "border-left-style:solid;border-top-style:solid;border-right-style:solid;border-bottom-style:solid;"
              "border-left-width:1.5px;border-top-width:2px;border-right-width:0px;border-bottom-width:4px;}");
}

TEST(ViewAppearanceTest, BorderColorGoesInFrontOfTheLastBraceAndEarlierColorsStay)
{
    StyledFrame frame("QFrame { color: red; }");
    frame.view.setBorderColor(255, 0, 0);
    EXPECT_EQ(frame.sheet(), "QFrame { color: red; border-color: #ff0000;}");

    frame.view.setBorderColor(1, 2, 3);
    EXPECT_EQ(frame.sheet(), "QFrame { color: red; border-color: #ff0000;border-color: #010203;}");

    // A one-character value is the only one the expression removes.
    StyledFrame single("border-color: x;");
    single.view.setBorderColor(0, 0, 0);
    EXPECT_EQ(single.sheet(), "border-color: #000000;");

    // The shorthand goes, and with it any width written in it.
    StyledFrame shorthand("QFrame{border: 2px solid blue;}");
    shorthand.view.setBorderColor(16, 32, 48);
    EXPECT_EQ(shorthand.sheet(), "QFrame{border-color: #102030;}");
}

TEST(ViewAppearanceTest, ASheetStartingWithItsOnlyBrace)
{
    StyledFrame border("}");
    border.view.setBorderWidth(2);
    EXPECT_EQ(border.sheet(), "}border-style:solid;border-width:2px;");

    StyledFrame background("}");
    background.view.setPalette(PaletteWith(QPalette::Base, QColor(1, 2, 3)));
    EXPECT_EQ(background.sheet(), "background-color: #010203;}");
}

TEST(ViewAppearanceTest, PaletteMapsBaseTextAndAlternateBase)
{
    StyledFrame frame("QFrame { background-color: #1a2b3c; }");
    QPalette palette = PaletteWith(QPalette::Base, QColor(0x11, 0x22, 0x33));
    palette.setBrush(QPalette::Active, QPalette::Text, QColor(0x44, 0x55, 0x66, 17));
    palette.setBrush(QPalette::Active, QPalette::AlternateBase, QColor(0x77, 0x88, 0x99));

    frame.view.setPalette(palette);

    EXPECT_EQ(frame.sheet(), "QFrame {  background-color: #112233;border-color: #778899;}");
    // Alpha is dropped: colours go in opaque.
    EXPECT_EQ(frame.frame->palette().brush(QPalette::Active, QPalette::Text).color(), QColor(0x44, 0x55, 0x66));
    EXPECT_EQ(frame.view.palette(), palette);
}

TEST(ViewAppearanceTest, BackgroundWithAZeroStays)
{
    StyledFrame frame("QFrame { background-color: #808080; }");
    frame.view.setPalette(PaletteWith(QPalette::Base, QColor(0x64, 0x64, 0x64)));
    EXPECT_EQ(frame.sheet(), "QFrame { background-color: #808080; background-color: #646464;}");

    frame.view.setPalette(PaletteWith(QPalette::Base, QColor(0x12, 0x34, 0x56)));
    EXPECT_EQ(frame.sheet(), "QFrame { background-color: #808080; background-color: #123456;}");
}

TEST(ViewAppearanceTest, DisabledViewStoresThePaletteOnly)
{
    StyledFrame frame("QFrame { }");
    const QColor textBefore = frame.frame->palette().color(QPalette::Active, QPalette::Text);
    frame.view.setEnabled(false);
    const QPalette palette = PaletteWith(QPalette::Text, Qt::red);

    frame.view.setPalette(PaletteWith(QPalette::Base, Qt::blue));
    frame.view.setPalette(palette);

    EXPECT_EQ(frame.sheet(), "QFrame { }");
    EXPECT_EQ(frame.frame->palette().color(QPalette::Active, QPalette::Text), textBefore);
    EXPECT_EQ(frame.view.palette(), palette);
    // Enabling later does not apply it either.
    frame.view.setEnabled(true);
    EXPECT_EQ(frame.sheet(), "QFrame { }");
}

TEST(ViewAppearanceTest, AcceptedAndIgnored)
{
    StyledFrame frame("QFrame { }");
    frame.view.setCornerRadius(4);
    frame.view.addStyleClass("primary", true);
    frame.view.removeStyleClass("primary", false);
    EXPECT_EQ(frame.sheet(), "QFrame { }");
}

TEST(ViewAppearanceTest, NonWidgetHandlesAreLeftAlone)
{
    QObject plain;
    HandleView view(&plain);
    view.setBorderWidth(2);
    view.setBorderColor(1, 2, 3);
    view.setPalette(PaletteWith(QPalette::Base, Qt::red));
    EXPECT_FALSE(plain.property("styleSheet").isValid());
    view.setHandle(nullptr);
}

#include "UI/CKyUILabel.h"
#include "UI/CKyUIPushButton.h"
#include "UI/CKyUITextView.h"
#include "support/QtPrinters.h"
#include "support/TestViews.h"

#include <gtest/gtest.h>

#include <QtGui/QColor>
#include <QtGui/QPalette>
#include <QtWidgets/QFrame>

#include <climits>
#include <functional>
#include <memory>

namespace
{
const auto WidgetOf = [](const CKyUIBaseView& view) { return qobject_cast<QWidget*>(view.getHandle()); };

QPalette PaletteWith(QPalette::ColorRole role, const QColor& color)
{
    QPalette palette;
    palette.setBrush(QPalette::All, role, color);
    return palette;
}

void Background(CKyUIBaseView& view, int rgb)
{
    view.setPalette(PaletteWith(QPalette::Base, QColor(QRgb(rgb))));
}

template <class View> struct Row
{
    const char* sheet; // null: the widget's own empty rule
    std::function<void(View&)> apply;
    const char* expected;
};

// Each row on a fresh view from `make`, starting from the row's sheet.
template <class View> void ExpectRows(std::function<View*()> make, std::initializer_list<Row<View>> rows)
{
    for (const Row<View>& row : rows) {
        std::unique_ptr<View> view(make());
        if (row.sheet)
            WidgetOf(*view)->setStyleSheet(QString::fromLatin1(row.sheet));
        SCOPED_TRACE(WidgetOf(*view)->styleSheet().toStdString());
        row.apply(*view);
        EXPECT_EQ(WidgetOf(*view)->styleSheet(), QString::fromLatin1(row.expected));
    }
}
} // namespace

// Each rule removes what its expression matches, then puts its declaration in
// front of the sheet's last "}" or, without one, at the end.
TEST(StyleSheetRewriting, EachRuleOverSheetsOfEveryShape)
{
    const auto width = [](float w) { return [w](CKyUIBaseView& v) { v.setBorderWidth(w); }; };
    const auto colour = [](int r, int g, int b) {
        return [=](CKyUIBaseView& v) { v.setBorderColor(r, g, b); };
    };
    ExpectRows<CKyUIBaseView>(
        [] { return new HandleView(new QFrame); },
        {
            {"", width(2), "border-style:solid;border-width:2px;"},
            {"QFrame{border: 1px solid red;}", width(3), "QFrame{border-style:solid;border-width:3px;}"},
            {"QFrame { }", width(1.5f), "QFrame { border-style:solid;border-width:1.5px;}"},
            // Widths with a zero are never matched again: the sheet grows.
            {"", [](auto& v) { v.setBorderWidth(1), v.setBorderWidth(2); },
             "border-width:1px;border-style:solid;border-width:2px;"},
            {"border: 0px;", width(4), "border: 0px;border-style:solid;border-width:4px;"},
            {"", width(-1), "border-style:solid;border-width:-1px;"},
            {"}", width(2), "}border-style:solid;border-width:2px;"},
            {"QFrame { border-left-style: dashed; border-top-width: 7px; border-left-width:0px; }",
             [](auto& v) { v.setBorderWidth(1.5f, 2, 0, 4); },
             "QFrame {   border-left-width:0px; "
             "border-left-style:solid;border-top-style:solid;border-right-style:solid;border-bottom-style:"
             "solid;"
             "border-left-width:1.5px;border-top-width:2px;border-right-width:0px;border-bottom-width:4px;}"},
            {"QFrame { color: red; }",
             [](auto& v) { v.setBorderColor(255, 0, 0), v.setBorderColor(1, 2, 3); },
             "QFrame { color: red; border-color: #ff0000;border-color: #010203;}"},
            // A one-character value is the only one the expression removes.
            {"border-color: x;", colour(0, 0, 0), "border-color: #000000;"},
            // The shorthand goes, and with it any width written in it.
            {"QFrame{border: 2px solid blue;}", colour(16, 32, 48), "QFrame{border-color: #102030;}"},
            // Channels outside 0 to 255 leave the toolkit's invalid colour, black.
            {"QFrame { }", colour(-1, 256, INT_MAX), "QFrame { border-color: #000000;}"},
            {"}", [](auto& v) { Background(v, 0x010203); }, "background-color: #010203;}"},
            {"QFrame { background-color: #1a2b3c; }",
             [](auto& v) {
                 QPalette palette = PaletteWith(QPalette::Base, QColor(0x11, 0x22, 0x33));
                 palette.setBrush(QPalette::Active, QPalette::AlternateBase, QColor(0x77, 0x88, 0x99));
                 v.setPalette(palette);
             },
             "QFrame {  background-color: #112233;border-color: #778899;}"},
            {"QFrame { background-color: #808080; }",
             [](auto& v) { Background(v, 0x646464), Background(v, 0x123456); },
             "QFrame { background-color: #808080; background-color: #123456;}"},
            // A disabled view stores the palette only, also once enabled again.
            {"QFrame { }", [](auto& v) { v.setEnabled(false), Background(v, 0xff), v.setEnabled(true); },
             "QFrame { }"},
            {"QFrame { }",
             [](auto& v) {
                 v.setCornerRadius(4), v.addStyleClass("primary", true), v.removeStyleClass("primary", false);
             },
             "QFrame { }"},
        });
    ExpectRows<CKyUILabel>(
        [] { return new CKyUILabel; },
        {
            {nullptr, [](auto& l) { l.setFontSize(14), l.setBoldText(true); },
             "QLabel { font-size:14px;font-weight: bold;}"},
            {nullptr, [](auto& l) { l.setFontSize(12), l.setFontSize(12); }, "QLabel { font-size:12px;}"},
            // Neither a zero nor a minus sign is matched again.
            {nullptr, [](auto& l) { l.setFontSize(10), l.setFontSize(12), l.setFontSize(13); },
             "QLabel { font-size:10px;font-size:13px;}"},
            {nullptr, [](auto& l) { l.setFontSize(-3), l.setFontSize(9); },
             "QLabel { font-size:-3px;font-size:9px;}"},
            {nullptr, [](auto& l) { l.setFontSize(INT_MIN); }, "QLabel { font-size:-2147483648px;}"},
            {"color: red;", [](auto& l) { l.setFontSize(11); }, "color: red;font-size:11px;"},
            {nullptr, [](auto& l) { l.setBoldText(true), l.setBoldText(false); },
             "QLabel { font-weight: normal;}"},
            // The label's weight admits the digits 1 to 9, not 600.
            {"QLabel { font-weight: 600; } QLabel:hover { font-weight: 9; }",
             [](auto& l) { l.setBoldText(true); },
             "QLabel { font-weight: 600; } QLabel:hover {  font-weight: bold;}"},
        });
    using B = CKyUIPushButton;
    ExpectRows<B>(
        [] { return new B; },
        {
            {nullptr, [](auto& b) { b.setTextAlignment(B::Left); }, "QPushButton { text-align:left;}"},
            {nullptr, [](auto& b) { b.setTextAlignment(B::Center), b.setTextAlignment(B::Right); },
             "QPushButton { text-align:right;}"},
            // Out of range: the old alignment goes and nothing takes its place.
            {nullptr, [](auto& b) { b.setTextAlignment(B::Left), b.setTextAlignment(B::TextAlignment(7)); },
             "QPushButton { }"},
            {"QPushButton { text-align \t: \tright ; color: red; }",
             [](auto& b) { b.setTextAlignment(B::Left); }, "QPushButton {  color: red; text-align:left;}"},
            {"color: red;", [](auto& b) { b.setTextAlignment(B::Center); }, "color: red;text-align:center;"},
            {nullptr, [](auto& b) { b.setBoldText(true), b.setBoldText(false); },
             "QPushButton { font-weight: normal;}"},
            // The button's weight admits no digit at all.
            {"QPushButton { font-weight: 600; }", [](auto& b) { b.setBoldText(true); },
             "QPushButton { font-weight: 600; font-weight: bold;}"},
            {nullptr, [](auto& b) { b.setBorderWidth(2), b.setTextAlignment(B::Left), b.setBoldText(true); },
             "QPushButton { border-style:solid;border-width:2px;text-align:left;font-weight: bold;}"},
            {"QPushButton { color: red; } QPushButton:hover { }",
             [](auto& b) { b.setTextAlignment(B::Right); },
             "QPushButton { color: red; } QPushButton:hover { text-align:right;}"},
        });
}

// The text colour goes to the widget's palette, opaque, never into the sheet;
// handles that are no widgets are left alone.
TEST(StyleSheetRewriting, TextColourGoesToThePaletteWhileEnabled)
{
    QFrame frame;
    HandleView view(&frame);
    QPalette palette = PaletteWith(QPalette::Text, QColor(0x44, 0x55, 0x66, 17));
    view.setEnabled(false);
    view.setPalette(palette);
    EXPECT_NE(frame.palette().color(QPalette::Text), QColor(0x44, 0x55, 0x66));
    view.setEnabled(true);
    view.setPalette(palette);
    EXPECT_EQ(frame.palette().color(QPalette::Active, QPalette::Text), QColor(0x44, 0x55, 0x66));
    EXPECT_EQ(view.palette(), palette);
    EXPECT_EQ(frame.styleSheet(), QString());

    QObject plain;
    view.setHandle(&plain);
    view.setBorderWidth(2);
    view.setBorderColor(1, 2, 3);
    view.setPalette(PaletteWith(QPalette::Base, Qt::red));
    EXPECT_FALSE(plain.property("styleSheet").isValid());
    view.setHandle(nullptr);
}

// Rewriting the sheet later, and the polish that follows, keep that colour.
TEST(StyleSheetRewriting, TextColourOutlivesLaterRewrites)
{
    CKyUITextView view;
    QPalette palette = PaletteWith(QPalette::Text, QColor(0x44, 0x55, 0x66));
    palette.setColor(QPalette::Base, Qt::black);
    view.setPalette(palette);
    view.setBorderWidth(1);
    auto* widget = qobject_cast<QWidget*>(view.getHandle());
    widget->ensurePolished();
    EXPECT_EQ(widget->palette().color(QPalette::Active, QPalette::Text), QColor(0x44, 0x55, 0x66));
}

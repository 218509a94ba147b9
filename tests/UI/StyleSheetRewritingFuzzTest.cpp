#include "UI/CKyUILabel.h"
#include "UI/CKyUIPushButton.h"

#include <gtest/gtest.h>

#include <QtGui/QColor>
#include <QtGui/QPalette>
#include <QtWidgets/QWidget>

#include <climits>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <iterator>
#include <limits>
#include <random>

// Drives every style-sheet rewriting operation with random sheets (random
// bytes, CSS-like fragments with braces in odd places, very long sheets) and
// random values. Whatever the sheet, the operation must not crash, and its
// declaration must stand where a rule's new declaration goes: in front of the
// sheet's last "}" or at its very end. Deletions never touch a brace and never
// add anything.
//
// The seed is fixed so that a failure can be replayed; COMMONUI_FUZZ_SEED
// chooses another one, COMMONUI_FUZZ_ROUNDS another number of rounds.

namespace
{

// Silences the toolkit's complaints about unparsable sheets and invalid
// colours while the rounds run.
class QuietToolkit
{
public:
    QuietToolkit()
        : m_previous(qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {}))
    {}
    ~QuietToolkit() { qInstallMessageHandler(m_previous); }

private:
    QtMessageHandler m_previous;
};

unsigned EnvironmentNumber(const char* name, unsigned fallback)
{
    const char* value = std::getenv(name);
    return value && *value ? unsigned(std::strtoul(value, nullptr, 10)) : fallback;
}

class SheetMaker
{
public:
    explicit SheetMaker(std::mt19937& random)
        : m_random(random)
    {}

    int Between(int low, int high) { return std::uniform_int_distribution<int>(low, high)(m_random); }
    bool OneIn(int n) { return Between(1, n) == 1; }

    QString Sheet()
    {
        switch (Between(0, 24)) {
        case 0:
        case 1:
        case 2:
            return Edge();
        case 3:
            // Very long: some ten thousand pieces.
            return Fragments(Between(5000, 15000));
        case 4:
        case 5:
        case 6:
        case 7:
        case 8:
            return Bytes(Between(0, 300));
        default:
            return Fragments(Between(0, 60));
        }
    }

    float Width()
    {
        switch (Between(0, 7)) {
        case 0:
            return std::numeric_limits<float>::quiet_NaN();
        case 1:
            return OneIn(2) ? std::numeric_limits<float>::infinity()
                            : -std::numeric_limits<float>::infinity();
        case 2:
            return std::uniform_real_distribution<float>(-1e30f, 1e30f)(m_random);
        case 3:
            return float(Between(-10, 10));
        default:
            return std::uniform_real_distribution<float>(-5.0f, 20.0f)(m_random);
        }
    }

    int Channel()
    {
        switch (Between(0, 9)) {
        case 0:
            return OneIn(2) ? INT_MIN : INT_MAX;
        case 1:
            return Between(-300, 600);
        default:
            return Between(0, 255);
        }
    }

    int Number()
    {
        switch (Between(0, 5)) {
        case 0:
            return OneIn(2) ? INT_MIN : INT_MAX;
        case 1:
            return Between(INT_MIN, INT_MAX);
        default:
            return Between(-30, 120);
        }
    }

private:
    QString Edge()
    {
        static const char* const edges[] = {"",  "}",   "}}}",       "{",          "}x",          " }",
                                            ";", "{}{", "}{border:", "QLabel { }", "QLabel { }}", "\\}"};
        return QString::fromLatin1(edges[Between(0, int(std::size(edges)) - 1)]);
    }

    QString Bytes(int size)
    {
        QByteArray bytes(size, '\0');
        for (char& byte : bytes)
            byte = char(Between(0, 255));
        // Sometimes Latin-1 (every byte a character, NUL included), sometimes
        // broken UTF-8.
        return OneIn(2) ? QString::fromLatin1(bytes) : QString::fromUtf8(bytes);
    }

    // Pieces of the declarations the rules look for, and of their neighbours.
    QString Fragments(int count)
    {
        static const char* const pieces[] = {
            "{",          "}",           "}}",          "{{",          ";",          ":",
            " ",          "\t",          "\n",          "border",      "border-",    "-width",
            "-style",     "-color",      "border-left", "border-top",  "background", "background-color",
            "text-align", "font-weight", "font-size",   "QPushButton", "QLabel",     "#",
            "0",          "1",           "9",           "px",          "solid",      "red",
            "bold",       "normal",      "left",        "center",      "/*",         "*/",
            "\"",         "'",           "\\",          "(",           ")",          "600",
            "a",          "Z",           "::",          ".5",          "-1",         "\xe9"};
        QString sheet;
        for (int i = 0; i < count; ++i)
            sheet += QString::fromLatin1(pieces[Between(0, int(std::size(pieces)) - 1)]);
        return sheet;
    }

    std::mt19937& m_random;
};

// Where a rule's new declaration must stand after the rewrite.
::testing::AssertionResult DeclarationStandsLast(const QString& before, const QString& after,
                                                 const QString& declaration)
{
    if (after.count(QLatin1Char('}')) != before.count(QLatin1Char('}')))
        return ::testing::AssertionFailure() << "the braces changed";
    if (after.size() > before.size() + declaration.size())
        return ::testing::AssertionFailure() << "more than the declaration was added";
    for (int at = after.indexOf(declaration); at >= 0; at = after.indexOf(declaration, at + 1)) {
        const QString tail = after.mid(at + declaration.size());
        if (tail.isEmpty() || (tail.startsWith(QLatin1Char('}')) && tail.count(QLatin1Char('}')) == 1))
            return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure()
           << "\"" << declaration.toStdString() << "\" is not in front of the last brace nor at the end";
}

QString ColorName(int red, int green, int blue)
{
    QColor color;
    color.setRgb(red, green, blue, 255);
    return color.name();
}

} // namespace

TEST(StyleSheetRewritingFuzz, AnySheetAndValueKeepsEachRulesDeclaration)
{
    const unsigned seed = EnvironmentNumber("COMMONUI_FUZZ_SEED", 20240611u);
    const unsigned rounds = EnvironmentNumber("COMMONUI_FUZZ_ROUNDS", 400u);
    SCOPED_TRACE(::testing::Message() << "COMMONUI_FUZZ_SEED=" << seed);
    std::mt19937 random(seed);
    SheetMaker make(random);
    QuietToolkit quiet;

    CKyUIPushButton button;
    CKyUILabel label;
    QWidget* const widgets[] = {static_cast<QWidget*>(button.getHandle()),
                                static_cast<QWidget*>(label.getHandle())};
    CKyUIBaseView* const views[] = {&button, &label};

    struct Rule
    {
        const char* name;
        // Applies the rule to the view with fresh random values and answers the
        // declaration it must have written.
        std::function<QString(CKyUIBaseView&)> apply;
        bool labelOnly = false;
        bool buttonOnly = false;
    };
    const Rule rules[] = {
        {"border width",
         [&](CKyUIBaseView& view) {
             const float width = make.Width();
             view.setBorderWidth(width);
             return QStringLiteral("border-style:solid;border-width:%1px;").arg(double(width));
         }},
        {"four border widths",
         [&](CKyUIBaseView& view) {
             const float w[] = {make.Width(), make.Width(), make.Width(), make.Width()};
             view.setBorderWidth(w[0], w[1], w[2], w[3]);
             static const char* const sides[] = {"left", "top", "right", "bottom"};
             QString widths;
             for (const char* side : sides)
                 widths += QStringLiteral("border-%1-style:solid;").arg(QLatin1String(side));
             for (int i = 0; i < 4; ++i)
                 widths += QStringLiteral("border-%1-width:%2px;")
                               .arg(QLatin1String(sides[i]), QString::number(double(w[i]), 'g', 6));
             return widths;
         }},
        {"border colour",
         [&](CKyUIBaseView& view) {
             const int r = make.Channel(), g = make.Channel(), b = make.Channel();
             view.setBorderColor(r, g, b);
             return QStringLiteral("border-color: %1;").arg(ColorName(r, g, b));
         }},
        {"background colour",
         [&](CKyUIBaseView& view) {
             const QColor color(make.Between(0, 255), make.Between(0, 255), make.Between(0, 255));
             QPalette palette;
             palette.setColor(QPalette::Base, color);
             view.setPalette(palette);
             return QStringLiteral("background-color: %1;").arg(color.name());
         }},
        {"border colour of a palette",
         [&](CKyUIBaseView& view) {
             const QColor color(make.Between(0, 255), make.Between(0, 255), make.Between(0, 255));
             QPalette palette;
             palette.setColor(QPalette::AlternateBase, color);
             view.setPalette(palette);
             return QStringLiteral("border-color: %1;").arg(color.name());
         }},
        {"alignment",
         [&](CKyUIBaseView& view) {
             const int alignment = make.Between(-2, 4);
             static_cast<CKyUIPushButton&>(view).setTextAlignment(CKyUIPushButton::TextAlignment(alignment));
             static const char* const names[] = {"left", "right", "center"};
             return alignment >= 0 && alignment <= 2
                        ? QStringLiteral("text-align:%1;").arg(QLatin1String(names[alignment]))
                        : QString();
         },
         false, true},
        {"bold button",
         [&](CKyUIBaseView& view) {
             const bool bold = make.OneIn(2);
             static_cast<CKyUIPushButton&>(view).setBoldText(bold);
             return bold ? QStringLiteral("font-weight: bold;") : QStringLiteral("font-weight: normal;");
         },
         false, true},
        {"bold label",
         [&](CKyUIBaseView& view) {
             const bool bold = make.OneIn(2);
             static_cast<CKyUILabel&>(view).setBoldText(bold);
             return bold ? QStringLiteral("font-weight: bold;") : QStringLiteral("font-weight: normal;");
         },
         true, false},
        {"font size",
         [&](CKyUIBaseView& view) {
             const int size = make.Number();
             static_cast<CKyUILabel&>(view).setFontSize(size);
             return QStringLiteral("font-size:%1px;").arg(size);
         },
         true, false},
    };

    for (unsigned round = 0; round < rounds; ++round) {
        const int which = make.Between(0, 1);
        CKyUIBaseView& view = *views[which];
        QWidget* widget = widgets[which];
        // A few rules in a row on the same sheet, so that they meet each
        // other's declarations as well as the random text.
        widget->setStyleSheet(make.Sheet());
        for (int step = make.Between(1, 4); step > 0; --step) {
            const Rule& rule = rules[make.Between(0, int(std::size(rules)) - 1)];
            if ((rule.labelOnly && which == 0) || (rule.buttonOnly && which == 1))
                continue;
            SCOPED_TRACE(::testing::Message() << "round " << round << ", " << rule.name);
            const QString before = widget->styleSheet();
            const QString declaration = rule.apply(view);
            const QString after = widget->styleSheet();
            ASSERT_TRUE(DeclarationStandsLast(before, after, declaration))
                << "sheet before (" << before.size() << " characters): " << before.left(200).toStdString();
        }
    }
}

// The colour rules read the palette only while the view is enabled; the text
// colour goes to the widget's palette, never into its sheet.
TEST(StyleSheetRewritingFuzz, PalettesChangeNothingOnDisabledViewsAndTextColourSkipsTheSheet)
{
    std::mt19937 random(EnvironmentNumber("COMMONUI_FUZZ_SEED", 20240611u));
    SheetMaker make(random);
    QuietToolkit quiet;
    CKyUILabel label;
    auto* widget = static_cast<QWidget*>(label.getHandle());

    for (int round = 0; round < 100; ++round) {
        SCOPED_TRACE(round);
        widget->setStyleSheet(make.Sheet());
        const QString sheet = widget->styleSheet();
        const QColor color(make.Between(0, 255), make.Between(0, 255), make.Between(0, 255));
        QPalette palette;
        palette.setColor(QPalette::Text, color);

        label.setEnabled(true);
        label.setPalette(palette);
        EXPECT_EQ(widget->styleSheet(), sheet);
        EXPECT_EQ(widget->palette().color(QPalette::Active, QPalette::Text), color);

        palette.setColor(QPalette::Base, color);
        palette.setColor(QPalette::AlternateBase, color);
        label.setEnabled(false);
        label.setPalette(palette);
        EXPECT_EQ(widget->styleSheet(), sheet);
        EXPECT_EQ(label.palette(), palette);
    }
}

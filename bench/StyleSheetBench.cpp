// The style-sheet rewriting of the push button and the label against setting
// the same declarations with setStyleSheet directly, as plain Qt code would.
//
// Each round puts a fresh widget into a hidden dialog that wears the theme and
// polishes it (untimed), then makes N calls (timed), so every call pays what
// it pays in a running dialog: the rewrite and the re-polish of the widget.
//
// Button: alternating setTextAlignment and setBoldText; both expressions
// match what was written before, so the sheet keeps its length.
// Label: setFontSize with 10, 20, ... 100 in turn; the font-size expression
// admits no 0, so every call leaves its declaration behind and the sheet grows
// by one declaration a call. The counter "sheet" is the final sheet length.
#include "BenchHost.h"

#include "UI/CKyUILabel.h"
#include "UI/CKyUIPushButton.h"

#include <benchmark/benchmark.h>

#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace
{

int FontSize(int call)
{
    return 10 * (1 + call % 10);
}

CKyUIPushButton::TextAlignment Alignment(int call)
{
    return CKyUIPushButton::TextAlignment((call / 2) % 3);
}

bool Bold(int call)
{
    return (call / 2) % 2 == 0;
}

QWidget* Place(BenchHost::ThemedDialog& host, QObject* handle)
{
    auto* widget = qobject_cast<QWidget*>(handle);
    host.layout()->addWidget(widget);
    widget->ensurePolished();
    return widget;
}

void ButtonCommonUI(benchmark::State& state)
{
    const int calls = int(state.range(0));
    BenchHost::ThemedDialog host(true);
    qint64 sheetLength = 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto* button = new CKyUIPushButton;
        button->setText(QStringLiteral("Apply"));
        QWidget* widget = Place(host, button->getHandle());
        state.ResumeTiming();
        for (int call = 0; call < calls; ++call) {
            if (call % 2 == 0)
                button->setTextAlignment(Alignment(call));
            else
                button->setBoldText(Bold(call));
        }
        state.PauseTiming();
        sheetLength = widget->styleSheet().size();
        delete button;
        BenchHost::FlushPostedEvents();
        state.ResumeTiming();
    }
    state.counters["per"] = calls;
    state.counters["sheet"] = double(sheetLength);
}

void ButtonQt(benchmark::State& state)
{
    const int calls = int(state.range(0));
    BenchHost::ThemedDialog host(true);
    static const char* const alignments[] = {"left", "right", "center"};
    qint64 sheetLength = 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto* button = new QPushButton(QStringLiteral("Apply"));
        Place(host, button);
        state.ResumeTiming();
        // Plain Qt code keeps both values itself and writes the whole rule.
        int alignment = 0;
        bool bold = false;
        for (int call = 0; call < calls; ++call) {
            if (call % 2 == 0)
                alignment = Alignment(call);
            else
                bold = Bold(call);
            button->setStyleSheet(QStringLiteral("QPushButton { text-align:%1;font-weight: %2;}")
                                      .arg(QLatin1String(alignments[alignment]),
                                           bold ? QLatin1String("bold") : QLatin1String("normal")));
        }
        state.PauseTiming();
        sheetLength = button->styleSheet().size();
        delete button;
        BenchHost::FlushPostedEvents();
        state.ResumeTiming();
    }
    state.counters["per"] = calls;
    state.counters["sheet"] = double(sheetLength);
}

void LabelCommonUI(benchmark::State& state)
{
    const int calls = int(state.range(0));
    BenchHost::ThemedDialog host(true);
    qint64 sheetLength = 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto* label = new CKyUILabel;
        label->setText(QStringLiteral("Diameter"));
        QWidget* widget = Place(host, label->getHandle());
        state.ResumeTiming();
        for (int call = 0; call < calls; ++call)
            label->setFontSize(FontSize(call));
        state.PauseTiming();
        sheetLength = widget->styleSheet().size();
        delete label;
        BenchHost::FlushPostedEvents();
        state.ResumeTiming();
    }
    state.counters["per"] = calls;
    state.counters["sheet"] = double(sheetLength);
}

void LabelQt(benchmark::State& state)
{
    const int calls = int(state.range(0));
    BenchHost::ThemedDialog host(true);
    qint64 sheetLength = 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto* label = new QLabel(QStringLiteral("Diameter"));
        Place(host, label);
        state.ResumeTiming();
        for (int call = 0; call < calls; ++call)
            label->setStyleSheet(QStringLiteral("QLabel { font-size:%1px;}").arg(FontSize(call)));
        state.PauseTiming();
        sheetLength = label->styleSheet().size();
        delete label;
        BenchHost::FlushPostedEvents();
        state.ResumeTiming();
    }
    state.counters["per"] = calls;
    state.counters["sheet"] = double(sheetLength);
}

} // namespace

#define REWRITES(function, name)                                                                             \
    BENCHMARK(function)->Name(name)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMicrosecond)

REWRITES(ButtonCommonUI, "StyleSheet/button/commonui");
REWRITES(ButtonQt, "StyleSheet/button/qt");
REWRITES(LabelCommonUI, "StyleSheet/label/commonui");
REWRITES(LabelQt, "StyleSheet/label/qt");

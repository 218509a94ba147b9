// The style-sheet rewriting of the push button and the label against setting
// the same declarations with setStyleSheet directly, as plain Qt code would.
//
// Each round puts a fresh widget into a hidden dialog that wears the theme and
// polishes it (untimed), then makes N calls (timed), so every call pays what
// it pays in a running dialog: the rewrite and the re-polish of the widget.
// The figure is per call; the two sides take turns round by round.
//
// Button: alternating setTextAlignment and setBoldText; both expressions
// match what was written before, so the sheet keeps its length.
// Label: setFontSize with 10, 20, ... 100 in turn; the font-size expression
// admits no 0, so every call leaves its declaration behind and the sheet grows
// by one declaration a call. The counters "<side>.sheet" give the length of
// the last round's final sheet.
#include "BenchHost.h"
#include "Paired.h"

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

// One widget at a time, placed and polished in a running themed dialog
// before the timed calls and deleted after them.
struct Round
{
    BenchHost::ThemedDialog host{true};
    CKyUIPushButton* ourButton = nullptr;
    CKyUILabel* ourLabel = nullptr;
    QPushButton* button = nullptr;
    QLabel* label = nullptr;
    QWidget* placed = nullptr;
    int calls = 0;
    qint64 ourSheet = 0;
    qint64 sheet = 0;

    void Place(QObject* handle)
    {
        placed = qobject_cast<QWidget*>(handle);
        host.layout()->addWidget(placed);
        placed->ensurePolished();
    }

    void Remove(qint64& sheetLength)
    {
        sheetLength = placed->styleSheet().size();
        delete ourButton;
        delete ourLabel;
        delete button;
        delete label;
        ourButton = nullptr;
        ourLabel = nullptr;
        button = nullptr;
        label = nullptr;
        BenchHost::FlushPostedEvents();
    }
};

void ButtonWithLibrary(Round& r)
{
    for (int call = 0; call < r.calls; ++call) {
        if (call % 2 == 0)
            r.ourButton->setTextAlignment(Alignment(call));
        else
            r.ourButton->setBoldText(Bold(call));
    }
}

// Plain Qt code keeps both values itself and writes the whole rule each time.
void ButtonWithQt(Round& r)
{
    static const char* const alignments[] = {"left", "right", "center"};
    int alignment = 0;
    bool bold = false;
    for (int call = 0; call < r.calls; ++call) {
        if (call % 2 == 0)
            alignment = Alignment(call);
        else
            bold = Bold(call);
        r.button->setStyleSheet(QStringLiteral("QPushButton { text-align:%1;font-weight: %2;}")
                                    .arg(QLatin1String(alignments[alignment]),
                                         bold ? QLatin1String("bold") : QLatin1String("normal")));
    }
}

void LabelWithLibrary(Round& r)
{
    for (int call = 0; call < r.calls; ++call)
        r.ourLabel->setFontSize(FontSize(call));
}

void LabelWithQt(Round& r)
{
    for (int call = 0; call < r.calls; ++call)
        r.label->setStyleSheet(QStringLiteral("QLabel { font-size:%1px;}").arg(FontSize(call)));
}

int RoundsFor(int calls)
{
    return calls >= 1000 ? 3 : calls >= 100 ? 10 : 30;
}

void Button(benchmark::State& state)
{
    Round r;
    r.calls = int(state.range(0));
    Paired::Compare(state, Paired::Clock::Thread, RoundsFor(r.calls), r.calls,
                    {{"commonui", [&r] { ButtonWithLibrary(r); },
                      [&r] {
                          r.ourButton = new CKyUIPushButton;
                          r.ourButton->setText(QStringLiteral("Apply"));
                          r.Place(r.ourButton->getHandle());
                      },
                      [&r] { r.Remove(r.ourSheet); }},
                     {"qt", [&r] { ButtonWithQt(r); },
                      [&r] {
                          r.button = new QPushButton(QStringLiteral("Apply"));
                          r.Place(r.button);
                      },
                      [&r] { r.Remove(r.sheet); }}},
                    "qt");
    state.counters["commonui.sheet"] = double(r.ourSheet);
    state.counters["qt.sheet"] = double(r.sheet);
}

void Label(benchmark::State& state)
{
    Round r;
    r.calls = int(state.range(0));
    Paired::Compare(state, Paired::Clock::Thread, RoundsFor(r.calls), r.calls,
                    {{"commonui", [&r] { LabelWithLibrary(r); },
                      [&r] {
                          r.ourLabel = new CKyUILabel;
                          r.ourLabel->setText(QStringLiteral("Diameter"));
                          r.Place(r.ourLabel->getHandle());
                      },
                      [&r] { r.Remove(r.ourSheet); }},
                     {"qt", [&r] { LabelWithQt(r); },
                      [&r] {
                          r.label = new QLabel(QStringLiteral("Diameter"));
                          r.Place(r.label);
                      },
                      [&r] { r.Remove(r.sheet); }}},
                    "qt");
    state.counters["commonui.sheet"] = double(r.ourSheet);
    state.counters["qt.sheet"] = double(r.sheet);
}

} // namespace

#define REWRITES(function, name)                                                                             \
    BENCHMARK(function)                                                                                      \
        ->Name(name)                                                                                         \
        ->ArgName("calls")                                                                                   \
        ->Arg(10)                                                                                            \
        ->Arg(100)                                                                                           \
        ->Arg(1000)                                                                                          \
        ->Iterations(1)                                                                                      \
        ->Repetitions(1)

REWRITES(Button, "StyleSheet/button");
REWRITES(Label, "StyleSheet/label");

// Building a dialog through the library against the same widgets built with
// plain Qt Widgets code.
//
// Content: 200 controls (20 group boxes, each holding two labels, two text
// edits, two combo boxes of 20 items, two check boxes and a push button) are
// created, given their texts and one connected handler each where they have a
// signal, laid out (adjustSize on the dialog, which polishes every widget
// against the theme and activates the layouts) and destroyed, in a hidden
// dialog that wears the theme and is not polished yet, as in SetupUI(). The
// library's side builds into a root column as SetupUI() does; the Qt side
// into a page widget with a QVBoxLayout.
//
// Set-up: what exec() does before its modal loop (theme on the dialog, size
// policy, "mainLayout" with the root column), driven through the dialog's
// implementation, then adjustSize and destruction; against a QDialog given
// the same style sheet and an empty QVBoxLayout. Whole: the set-up followed
// by the 200 controls and the button box, against the same in Qt.
//
// In the content benchmark, commonui_interactive builds the library's side
// with every control following its user (the interactive switch on).
//
// A third side, qt_with_empty_rules, builds the plain Qt widgets but gives each
// at creation the empty rule of its class ("QLabel { }", ...) that the library
// gives its widgets: it shows what those rules alone cost in Qt. The sides
// take turns round by round (Paired.h); the figures are per dialog, or per
// set-up.
#include "BenchHost.h"
#include "Paired.h"

#include "UI/CKyUICheckBox.h"
#include "UI/CKyUIComboBox.h"
#include "UI/CKyUIDialog.h"
#include "UI/CKyUIDialogButtonBox.h"
#include "UI/CKyUIGroupBox.h"
#include "UI/CKyUILabel.h"
#include "UI/CKyUIPushButton.h"
#include "UI/CKyUITextEdit.h"
#include "UI/CKyUIVerticalLayout.h"
#include "UI/Impl/CKyUIDialogImpl.h"

#include <benchmark/benchmark.h>

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <memory>

namespace
{

constexpr int kGroups = 20;
constexpr int kPairsPerGroup = 2;
constexpr int kControls = kGroups * (1 + kPairsPerGroup * 4 + 1);
static_assert(kControls == 200, "two hundred controls");

const QStringList& ComboItems()
{
    static const QStringList items = [] {
        QStringList list;
        for (int i = 1; i <= 20; ++i)
            list << QStringLiteral("Item %1").arg(i);
        return list;
    }();
    return items;
}

// Where the handlers write, so that they do something.
long g_sink = 0;

// --- through the library ---------------------------------------------------

void FillWithLibrary(CKyUIVerticalLayout* root)
{
    for (int g = 0; g < kGroups; ++g) {
        auto* group = new CKyUIGroupBox(CKyUIGroupBox::Vertical, true);
        group->setTitle(QStringLiteral("Group %1").arg(g));
        root->addView(group);
        for (int k = 0; k < kPairsPerGroup; ++k) {
            auto* label = new CKyUILabel;
            label->setText(QStringLiteral("Parameter %1.%2").arg(g).arg(k));
            group->addView(label);

            auto* edit = new CKyUITextEdit(CKyUITextEdit::Medium);
            edit->setText(QStringLiteral("%1").arg(g * 10 + k));
            edit->textChanged().connect([](QString text) { g_sink += text.size(); });
            group->addView(edit);

            auto* combo = new CKyUIComboBox;
            combo->insertItems(0, ComboItems());
            combo->setCurrentIndex(g % 20);
            combo->currentIndexChanged().connect([](int index) { g_sink += index; });
            group->addView(combo);

            auto* check = new CKyUICheckBox;
            check->setText(QStringLiteral("Option %1.%2").arg(g).arg(k));
            check->setChecked(k == 0);
            check->toggled().connect([](bool on) { g_sink += on; });
            group->addView(check);
        }
        auto* button = new CKyUIPushButton;
        button->setText(QStringLiteral("Apply %1").arg(g));
        button->clicked().connect([](bool) { ++g_sink; });
        group->addView(button);
    }
}

class ContentDialog : public CKyUIDialog
{
public:
    explicit ContentDialog(bool withContent)
        : m_withContent(withContent)
    {}

    void SetupUI() override
    {
        if (!m_withContent)
            return;
        FillWithLibrary(GetLayout());
        auto* buttons = new CKyUIDialogButtonBox(this);
        buttons->accepted().connect([this] { accept(); });
        buttons->rejected().connect([this] { reject(); });
    }

private:
    const bool m_withContent;
};

// exec() without its modal loop: the set-up is the implementation's own step.
void SetUpAndLayOutWithLibrary(bool withContent)
{
    auto* dialog = new ContentDialog(withContent);
    static_cast<CKyUIDialogImpl*>(dialog->impl())->SetupUIImpl(nullptr);
    auto* window = qobject_cast<QDialog*>(dialog->getHandle());
    window->adjustSize();
    delete dialog;
    // A dialog leaves its QDialog behind by design; the plug-in's host would
    // keep it, here it goes so that the next round starts clean.
    delete window;
    BenchHost::FlushPostedEvents();
}

// --- plain Qt Widgets --------------------------------------------------------

// With `ownSheets`, each widget gets at creation the empty rule of its class
// that the library gives its widgets: the part of the library's cost that
// comes from that rule alone.
void FillWithQt(QVBoxLayout* column, bool ownSheets = false)
{
    const auto sheet = [ownSheets](QWidget* widget, const char* rule) {
        if (ownSheets)
            widget->setStyleSheet(QLatin1String(rule));
    };
    for (int g = 0; g < kGroups; ++g) {
        auto* group = new QGroupBox(QStringLiteral("Group %1").arg(g));
        sheet(group, "QGroupBox { }");
        auto* groupLayout = new QVBoxLayout(group);
        groupLayout->setContentsMargins(5, 5, 5, 5);
        column->addWidget(group);
        for (int k = 0; k < kPairsPerGroup; ++k) {
            auto* label = new QLabel;
            sheet(label, "QLabel { }");
            label->setText(QStringLiteral("Parameter %1.%2").arg(g).arg(k));
            groupLayout->addWidget(label);

            auto* edit = new QLineEdit;
            sheet(edit, "QLineEdit { }");
            edit->setText(QStringLiteral("%1").arg(g * 10 + k));
            QObject::connect(edit, &QLineEdit::textChanged,
                             [](const QString& text) { g_sink += text.size(); });
            groupLayout->addWidget(edit);

            // The library's combo box and check box have these fixed sizes.
            auto* combo = new QComboBox;
            sheet(combo, "QComboBox { }");
            combo->setFixedSize(100, 25);
            combo->addItems(ComboItems());
            combo->setCurrentIndex(g % 20);
            QObject::connect(combo, QOverload<int>::of(&QComboBox::currentIndexChanged),
                             [](int index) { g_sink += index; });
            groupLayout->addWidget(combo);

            auto* check = new QCheckBox;
            sheet(check, "QCheckBox { }");
            check->setFixedHeight(25);
            check->setText(QStringLiteral("Option %1.%2").arg(g).arg(k));
            check->setChecked(k == 0);
            QObject::connect(check, &QCheckBox::toggled, [](bool on) { g_sink += on; });
            groupLayout->addWidget(check);
        }
        auto* button = new QPushButton;
        sheet(button, "QPushButton { }");
        button->setAutoDefault(true);
        button->setText(QStringLiteral("Apply %1").arg(g));
        QObject::connect(button, &QPushButton::clicked, [](bool) { ++g_sink; });
        groupLayout->addWidget(button);
    }
}

void SetUpAndLayOutWithQt(bool withContent, bool ownSheets = false)
{
    auto* window = new QDialog;
    window->setStyleSheet(BenchHost::ThemeSheet());
    window->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::MinimumExpanding);
    auto* column = new QVBoxLayout(window);
    column->setContentsMargins(0, 0, 0, 0);
    if (withContent) {
        FillWithQt(column, ownSheets);
        auto* buttons =
            new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Help);
        QObject::connect(buttons, &QDialogButtonBox::accepted, window, &QDialog::accept);
        QObject::connect(buttons, &QDialogButtonBox::rejected, window, &QDialog::reject);
        column->addWidget(buttons);
    }
    window->adjustSize();
    delete window;
    BenchHost::FlushPostedEvents();
}

// --- benchmarks --------------------------------------------------------------

// A fresh dialog for every round (untimed), as SetupUI() gets it: themed, not
// yet polished, so that each widget is polished once, by the layout pass.
std::unique_ptr<BenchHost::ThemedDialog> g_host;

void NewHost()
{
    g_host = std::make_unique<BenchHost::ThemedDialog>(false);
}

void DropHost()
{
    g_host.reset();
    BenchHost::FlushPostedEvents();
}

// `interactive`: every control follows its user, as in a dialog switched on.
void ContentWithLibrary(bool interactive)
{
    auto* root = new CKyUIVerticalLayout;
    root->setInteractive(interactive);
    g_host->layout()->addWidget(qobject_cast<QWidget*>(root->getHandle()));
    FillWithLibrary(root);
    g_host->dialog()->adjustSize();
    delete root;
    BenchHost::FlushPostedEvents();
}

void ContentWithQt(bool ownSheets)
{
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    g_host->layout()->addWidget(page);
    FillWithQt(column, ownSheets);
    g_host->dialog()->adjustSize();
    delete page;
    BenchHost::FlushPostedEvents();
}

void Content(benchmark::State& state)
{
    Paired::Compare(state, Paired::Clock::Thread, 20, 1,
                    {{"commonui", [] { ContentWithLibrary(false); }, NewHost, DropHost},
                     {"commonui_interactive", [] { ContentWithLibrary(true); }, NewHost, DropHost},
                     {"qt", [] { ContentWithQt(false); }, NewHost, DropHost},
                     {"qt_with_empty_rules", [] { ContentWithQt(true); }, NewHost, DropHost}},
                    "qt");
}

constexpr int kSetupsPerRound = 20;

void Setup(benchmark::State& state)
{
    Paired::Compare(state, Paired::Clock::Thread, 30, kSetupsPerRound,
                    {{"commonui",
                      [] {
                          for (int i = 0; i < kSetupsPerRound; ++i)
                              SetUpAndLayOutWithLibrary(false);
                      }},
                     {"qt",
                      [] {
                          for (int i = 0; i < kSetupsPerRound; ++i)
                              SetUpAndLayOutWithQt(false);
                      }}},
                    "qt");
}

void Whole(benchmark::State& state)
{
    Paired::Compare(state, Paired::Clock::Thread, 20, 1,
                    {{"commonui", [] { SetUpAndLayOutWithLibrary(true); }},
                     {"qt", [] { SetUpAndLayOutWithQt(true); }},
                     {"qt_with_empty_rules", [] { SetUpAndLayOutWithQt(true, true); }}},
                    "qt");
}

} // namespace

BENCHMARK(Content)->Name("Dialog/content200")->Iterations(1)->Repetitions(1);
BENCHMARK(Setup)->Name("Dialog/setup")->Iterations(1)->Repetitions(1);
BENCHMARK(Whole)->Name("Dialog/whole200")->Iterations(1)->Repetitions(1);

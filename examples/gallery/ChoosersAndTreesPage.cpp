// "Choosers and trees": message boxes, file dialogs, colour buttons and a tree
// of parameters. The buttons open the modal choosers; what the user picks is
// reported under the pages.

#include "GalleryPages.h"
#include "GalleryRows.h"

#include "UI/CKyUIColorButton.h"
#include "UI/CKyUIFileDialog.h"
#include "UI/CKyUIHorizontalLayout.h"
#include "UI/CKyUILabel.h"
#include "UI/CKyUIMessageBox.h"
#include "UI/CKyUIPushButton.h"
#include "UI/CKyUITreeView.h"
#include "UI/CKyUIVerticalLayout.h"

#include <QtGui/QIcon>

#include <functional>

using namespace GalleryRows;

namespace
{

const QMap<CKyUIMessageBox::StandardButton, QString>& ButtonNames()
{
    static const QMap<CKyUIMessageBox::StandardButton, QString> names = {
        {CKyUIMessageBox::NoButton, "no button"},
        {CKyUIMessageBox::Ok, "OK"},
        {CKyUIMessageBox::Cancel, "Cancel"},
        {CKyUIMessageBox::Yes, "Yes"},
        {CKyUIMessageBox::No, "No"},
        {CKyUIMessageBox::Save, "Save"},
        {CKyUIMessageBox::Discard, "Discard"},
        {CKyUIMessageBox::Retry, "Retry"},
        {CKyUIMessageBox::Abort, "Abort"}};
    return names;
}

// A button whose click runs `run` and reports what it answers.
void AddOpener(CKyUIHorizontalLayout* row, const QString& text, const GalleryReport& report,
               const std::function<QString(CKyUIBaseView*)>& run)
{
    CKyUIPushButton* button = NewButton(text);
    button->clicked().connect([button, report, run](bool) { report(run(button)); });
    row->addView(button);
}

void AddMessageBoxes(CKyUIVerticalLayout* page, const GalleryReport& report)
{
    CKyUIHorizontalLayout* row = AddRow(page, "Message box");
    const auto answered = [](CKyUIMessageBox::StandardButton button) {
        return "The message box answered " + ButtonNames().value(button, "another button");
    };
    AddOpener(row, "Information", report, [answered](CKyUIBaseView* parent) {
        return answered(CKyUIMessageBox::information(parent, "Hole", "The hole was drilled."));
    });
    AddOpener(row, "Question", report, [answered](CKyUIBaseView* parent) {
        return answered(CKyUIMessageBox::question(parent, "Hole", "Delete the hole and its thread?"));
    });
    AddOpener(row, "Warning", report, [answered](CKyUIBaseView* parent) {
        return answered(CKyUIMessageBox::warning(parent, "Hole", "The drawing has unsaved changes.",
                                                 CKyUIMessageBox::Save | CKyUIMessageBox::Discard |
                                                     CKyUIMessageBox::Cancel,
                                                 CKyUIMessageBox::Save));
    });
    AddOpener(row, "Critical", report, [answered](CKyUIBaseView* parent) {
        return answered(CKyUIMessageBox::critical(parent, "Hole", "The hole is deeper than the part.",
                                                  CKyUIMessageBox::Retry | CKyUIMessageBox::Abort));
    });
    AddFiller(row);
}

void AddFileDialogs(CKyUIVerticalLayout* page, const GalleryReport& report)
{
    CKyUIHorizontalLayout* row = AddRow(page, "File dialog");
    const QString drawings = "Drawings (*.dxf *.dwg);;All files (*)";
    const auto chosen = [](const QStringList& paths) {
        return paths.join("").isEmpty() ? QString("Nothing was chosen") : "Chosen: " + paths.join(", ");
    };
    AddOpener(row, "Open...", report, [=](CKyUIBaseView* parent) {
        return chosen({CKyUIFileDialog::getOpenFileName(parent, "Open drawing", drawings, "gallery")});
    });
    AddOpener(row, "Open several...", report, [=](CKyUIBaseView* parent) {
        return chosen(CKyUIFileDialog::getOpenFileNames(parent, "Open drawings", drawings, "gallery"));
    });
    AddOpener(row, "Save as...", report, [=](CKyUIBaseView* parent) {
        return chosen({CKyUIFileDialog::getSaveFileName(parent, "Save drawing", drawings, "gallery")});
    });
    AddOpener(row, "Folder...", report, [=](CKyUIBaseView* parent) {
        return chosen({CKyUIFileDialog::getExistingDirectory(parent, "Choose folder", "gallery")});
    });
    AddFiller(row);
}

void AddColorButtons(CKyUIVerticalLayout* page, const GalleryReport& report)
{
    CKyUIHorizontalLayout* row = AddRow(page, "Colour button");
    const struct
    {
        const char* name;
        QColor color;
        bool enabled;
    } buttons[] = {{"Hole", QColor(70, 130, 180), true},
                   {"Thread", QColor(184, 33, 21), true},
                   {"Locked", QColor(100, 100, 100), false}};
    for (const auto& each : buttons) {
        auto* button = new CKyUIColorButton;
        button->setColor(each.color);
        button->setEnabled(each.enabled);
        button->setChooserTitle(QString("%1 colour").arg(each.name));
        const QString name = each.name;
        button->colorChanged().connect(
            [report, name](QColor color) { report(name + " colour " + color.name().toUpper()); });
        row->addView(button);
    }
    row->addView(NewLabel("Click to choose"), 1.0f);
}

void AddTree(CKyUIVerticalLayout* page, const GalleryReport& report)
{
    CKyUIHorizontalLayout* row = AddRow(page, "Tree view");
    auto* tree = new CKyUITreeView;
    tree->setHeaderLabels({"Parameter", "Value", "Unit"});
    const QIcon hole(HoleIcon(16));
    const int drill = tree->addItem({"Hole"});
    tree->setIcon(drill, 0, hole);
    tree->addItem({"Diameter", "8.5", "mm"}, drill);
    tree->addItem({"Depth", "20", "mm"}, drill);
    const int thread = tree->addItem({"Thread", "M10", ""}, drill);
    tree->setCheckable(thread, true);
    tree->setChecked(thread, true);
    const int chamfer = tree->addItem({"Chamfer"});
    tree->setCheckable(chamfer, true);
    tree->addItem({"Angle", "90", "\u00b0"}, chamfer);
    tree->setExpanded(drill, true);
    tree->setColumnWidths({150, 70});
    tree->setCurrentItem(thread);
    tree->setMinimumHeight(150);
    tree->setMaximumHeight(150);
    tree->setMinimumWidth(330);
    tree->setMaximumWidth(330);
    tree->currentChanged().connect([tree, report](int item) { report("Current: " + tree->text(item, 0)); });
    tree->itemCheckChanged().connect([tree, report](int item, bool checked) {
        report(tree->text(item, 0) + (checked ? " checked" : " unchecked"));
    });
    tree->itemActivated().connect([tree, report](int item) { report("Activated: " + tree->text(item, 0)); });
    row->addView(tree);
    auto* note = NewLabel("Parameters with a check box each; click a header to sort once sorting is on, "
                          "double-click or press Return to activate.");
    note->setWordWrap(true);
    row->addView(note, 1.0f);
}

} // namespace

GalleryPage BuildChoosersAndTreesPage(const GalleryReport& report)
{
    CKyUIVerticalLayout* page = NewPage();
    AddMessageBoxes(page, report);
    AddFileDialogs(page, report);
    AddColorButtons(page, report);
    AddTree(page, report);
    AddPageFiller(page);
    return {"Choosers and trees", page, {}};
}

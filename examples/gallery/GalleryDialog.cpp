#include "GalleryDialog.h"

#include "UI/CKyUIDialogButtonBox.h"
#include "UI/CKyUILabel.h"
#include "UI/CKyUIStackedWidget.h"
#include "UI/CKyUIVerticalLayout.h"

void GalleryDialog::SetupUI()
{
    setWindowTitle("CommonUI gallery");
    CKyUIVerticalLayout* root = GetLayout();
    root->setMinimumWidth(680);

    m_pages = new CKyUIStackedWidget;
    root->addView(m_pages, 1.0f);

    m_report = new CKyUILabel;
    m_report->setText("Click, drag or choose: what the controls report shows up here.");
    m_report->setBorderWidth(0, 1, 0, 0);
    m_report->setBorderColor(0, 0, 0);
    const GalleryReport report = [this](const QString& text) { m_report->setText(text); };

    m_built = {BuildButtonsAndTextPage(report), BuildChoicesPage(report), BuildContainersPage(report)};
    m_built.append(BuildChoosersAndTreesPage(report));
    m_built.append(BuildNumbersAndLayoutPage(report));
    for (const GalleryPage& page : m_built)
        m_pages->addTab(page.view, page.title);
    // Follows the program's page changes only: a click on a tab is not reported.
    m_pages->currentChanged().connect([this](int index) {
        if (index >= 0 && index < m_built.size() && m_built[index].shown)
            m_built[index].shown();
    });
    root->addView(m_report);

    // Last, so that it lands at the foot; it never closes the dialog by itself.
    auto* buttons = new CKyUIDialogButtonBox(this);
    buttons->accepted().connect([this]() { accept(); });
    buttons->rejected().connect([this]() { reject(); });
    buttons->clicked().connect(
        [report](CKyUIPushButton*) { report("A button of the button box was pressed"); });
}

QStringList GalleryDialog::pageTitles() const
{
    QStringList titles;
    for (const GalleryPage& page : m_built)
        titles << page.title;
    return titles;
}

void GalleryDialog::showPage(int index)
{
    if (m_pages)
        m_pages->setCurrentIndex(index);
}

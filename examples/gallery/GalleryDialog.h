#pragma once

#include "GalleryPages.h"

#include "UI/CKyUIDialog.h"

#include <QtCore/QList>
#include <QtCore/QStringList>

class CKyUILabel;
class CKyUIStackedWidget;

// Every view of the library on the pages of a stacked widget, with the dialog
// button box at the foot and a line that reports what the user does.
class GalleryDialog : public CKyUIDialog
{
public:
    void SetupUI() override;

    // Valid once SetupUI() has run.
    QStringList pageTitles() const;
    void showPage(int index);

private:
    CKyUIStackedWidget* m_pages = nullptr;
    CKyUILabel* m_report = nullptr;
    QList<GalleryPage> m_built;
};

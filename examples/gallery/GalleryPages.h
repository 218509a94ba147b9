#pragma once

#include <QtCore/QString>

#include <functional>

class CKyUIBaseView;

// One page of the gallery: its tab title, its view (handed to the stacked
// widget, which then owns it) and what to do when the program makes it current.
struct GalleryPage
{
    using ShownFunction = std::function<void()>;
    QString title;
    CKyUIBaseView* view = nullptr;
    ShownFunction shown;
};

// Reports what a user did with a control (a click, a new value) to the line
// under the pages.
using GalleryReport = std::function<void(const QString&)>;

GalleryPage BuildButtonsAndTextPage(const GalleryReport& report);
GalleryPage BuildChoicesPage(const GalleryReport& report);
GalleryPage BuildContainersPage(const GalleryReport& report);
GalleryPage BuildChoosersAndTreesPage(const GalleryReport& report);
GalleryPage BuildNumbersAndLayoutPage(const GalleryReport& report);

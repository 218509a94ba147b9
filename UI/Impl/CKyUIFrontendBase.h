#pragma once

// Mix-in of the toolkit widget subclasses (frontends): lets the widget's
// handlers and slots call into the implementation that owns it. The
// implementation stores itself here right after creating the frontend; the
// pointer is not cleared when the view goes, since the widget is deleted later.
template <class Impl>
class CKyUIFrontendBase
{
public:
    Impl* impl = nullptr;
};

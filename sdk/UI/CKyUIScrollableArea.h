#pragma once

#include "UI/CKyUIBaseView.h"

/// Shows one child view inside a scrolling area whose scrolling switches are
/// only stored (see \ref behaviours_containers "behaviours"). The area resizes
/// the child, added with addView, with itself; a later addView replaces the
/// shown child.
///
/// \image html containers.png "A scrolled area among the containers"
class COMMONUI_EXPORT CKyUIScrollableArea : public CKyUIBaseView
{
public:
    /// An empty area.
    CKyUIScrollableArea();
    ~CKyUIScrollableArea() override;

    /// Lets pending layout work finish, then scrolls the view into sight.
    /// Pending events are processed inside this call, so slots may run in it.
    void scrollTo(CKyUIBaseView* view);

    /// The flags are only kept: the scroll bars keep the toolkit's own policy.
    /// When the area is interactive they apply: enabled scrolls as needed,
    /// disabled shows no scroll bar that way and takes no wheel for it
    /// (scrollTo() still scrolls). Both are false at first, so an interactive
    /// area scrolls only the ways it is told to.
    void setHorizontalScrollingEnabled(bool enabled);
    /// The stored flag; false at first.
    bool horizontalScrollingEnabled() const;
    /// Only kept, like setHorizontalScrollingEnabled().
    void setVerticalScrollingEnabled(bool enabled);
    /// The stored flag.
    bool verticalScrollingEnabled() const;
};

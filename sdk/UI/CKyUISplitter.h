#pragma once

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUISignal.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>

/// Views side by side (Qt::Horizontal) or one above the other (Qt::Vertical),
/// with a handle between each two that the user drags to share the room
/// differently.
///
/// Add the views with addView() or insertView(); the stretch given there
/// says how extra room is shared when the splitter grows. The sizes the user
/// chose are read with sizes() (or saveState()) and given back, in a later
/// run, with setSizes() (or restoreState()).
///
/// \code
/// auto* split = new CKyUISplitter(Qt::Horizontal);
/// split->addView(new CKyUIListBox, 1.0f);
/// split->addView(new CKyUITextView, 2.0f);
/// split->setSizes({200, 400});
/// split->splitterMoved().connect([split](int, int) { /* remember split->sizes() */ });
/// \endcode
///
/// \image html numbers-and-layout.png "A splitter, among the other controls of the page"
class COMMONUI_EXPORT CKyUISplitter : public CKyUIBaseView
{
public:
    /// An empty splitter whose views stand side by side (Qt::Horizontal) or
    /// one above the other (Qt::Vertical).
    explicit CKyUISplitter(Qt::Orientation orientation = Qt::Horizontal);
    ~CKyUISplitter() override;

    /// The direction in which the views follow each other.
    Qt::Orientation orientation() const;

    /// The size of each view along the orientation, in pixels, in the order
    /// of the views. While the splitter has no views, the sizes last given
    /// to setSizes() (or an empty list).
    QList<int> sizes() const;
    /// Shares the room as given, one size per view in their order; the
    /// splitter scales the sizes to the room it has. Sizes may be given
    /// before the views are added: they are kept until the splitter shows.
    void setSizes(const QList<int>& sizes);

    /// The sizes and the collapsed views, as bytes to keep between runs.
    QByteArray saveState() const;
    /// Gives back what saveState() returned; false, changing nothing, for
    /// bytes that are not such a state.
    bool restoreState(const QByteArray& state);

    /// Whether the user may drag a view down to nothing; true unless set.
    void setChildrenCollapsible(bool collapsible);
    /// Whether views may be collapsed.
    bool childrenCollapsible() const;

    /// Emitted while the user drags a handle, with the handle's new position
    /// and its index (the index of the view after it).
    CKyUISignal<void(int, int)>& splitterMoved();
};

#pragma once

#include "UI/CKyUIImageView.h"

/// An image view meant for previews; it behaves as a CKyUIImageView, drawing
/// off-screen only (see \ref behaviours_controls "behaviours").
///
/// \image html containers.png "A preview view's picture among the containers"
class COMMONUI_EXPORT CKyUIPreviewView : public CKyUIImageView
{
public:
    /// A preview view without a widget.
    CKyUIPreviewView();
    ~CKyUIPreviewView() override;
};

#pragma once

#include "UI/CKyUIImageView.h"

// An image view meant for previews.
class COMMONUI_EXPORT CKyUIPreviewView : public CKyUIImageView
{
public:
    CKyUIPreviewView();
    ~CKyUIPreviewView() override;
};

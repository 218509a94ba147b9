#include "UI/CKyUIPreviewView.h"

#include "UI/Impl/CKyUIImageViewImpl.h"

CKyUIPreviewView::CKyUIPreviewView()
{
    implAs<CKyUIImageViewImpl>()->MakePreviewWidget();
}

CKyUIPreviewView::~CKyUIPreviewView() = default;

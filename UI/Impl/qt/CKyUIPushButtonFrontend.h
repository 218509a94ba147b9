#pragma once

#include "UI/Impl/CKyUIFrontendBase.h"

#include <QtWidgets/QPushButton>

class CKyUIPushButtonImpl;

// The push button's widget: hands the toolkit's clicks to the implementation.
// Every such button becomes the dialog's default button while it has focus.
class CKyUIPushButtonFrontend : public QPushButton, public CKyUIFrontendBase<CKyUIPushButtonImpl>
{
    Q_OBJECT

public:
    explicit CKyUIPushButtonFrontend(QWidget* parent = nullptr);
    ~CKyUIPushButtonFrontend() override;

public Q_SLOTS:
    void OnPressed();
    void OnReleased();
    void OnClicked();
};

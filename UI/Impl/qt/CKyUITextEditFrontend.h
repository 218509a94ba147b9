#pragma once

#include "UI/Impl/CKyUIFrontendBase.h"

#include <QtWidgets/QLineEdit>

class CKyUITextEditImpl;

// The text edit's widget. Return and Enter (the keypad's too) end here in
// returnPressed() and are not passed on, so a dialog's default button never
// sees them. Its reactions go through the toolkit connections of the
// implementation, which leaves the frontend's pointer unset.
class CKyUITextEditFrontend : public QLineEdit, public CKyUIFrontendBase<CKyUITextEditImpl>
{
    Q_OBJECT

public:
    CKyUITextEditFrontend();

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

#pragma once

#include "UI/CKyUIDialog.h"

class CKyUILabel;
class CKyUITextEdit;

// The dialog a drilling plug-in shows before it places a pattern of holes.
class HolePatternDialog : public CKyUIDialog
{
public:
    void SetupUI() override;

private:
    CKyUITextEdit* m_diameter = nullptr;
    CKyUILabel* m_status = nullptr;
};

#pragma once

#include "UI/CKyUIDialog.h"

#include <QtCore/QString>

class CKyUICheckBox;
class CKyUIComboBox;
class CKyUIDoubleSpinBox;
class CKyUIHorizontalLayout;

// The feature panel of a pad: extrude a sketch by one or two lengths, through
// the whole part or up to a face. Every control follows its user, so the
// values are simply read back after exec().
class PadDialog : public CKyUIDialog
{
public:
    PadDialog();
    void SetupUI() override;

    // What the user chose; meaningful after exec() returned 1.
    struct Values
    {
        QString mode;
        double length = 0;
        double secondLength = 0;
        bool reversed = false;
        bool symmetric = false;
    };
    Values values() const;

    // The controls, for a program that plays the user (see main.cpp).
    CKyUIComboBox* mode = nullptr;
    CKyUIDoubleSpinBox* length = nullptr;
    CKyUIDoubleSpinBox* secondLength = nullptr;
    CKyUICheckBox* reversed = nullptr;
    CKyUICheckBox* symmetric = nullptr;

private:
    // Shows the rows that the chosen mode uses.
    void ShowRowsFor(int modeIndex);

    CKyUIHorizontalLayout* m_lengthRow = nullptr;
    CKyUIHorizontalLayout* m_secondLengthRow = nullptr;
};

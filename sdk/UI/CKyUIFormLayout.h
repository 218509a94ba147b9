#pragma once

#include "UI/CKyUIGridLayout.h"

#include <QtCore/QString>

class CKyUILabel;

/// A grid of two columns: labels on the left, the fields they name on the
/// right, one row each. The field column takes the extra width.
///
/// \code
/// auto* form = new CKyUIFormLayout;
/// form->addRow("Depth", depth);
/// form->addRow("Angle", angle);
/// form->addRow(new CKyUICheckBox); // across both columns
/// \endcode
///
/// \image html numbers-and-layout.png "A form, among the other controls of the page"
class COMMONUI_EXPORT CKyUIFormLayout : public CKyUIGridLayout
{
public:
    /// An empty form whose second column takes the extra width.
    CKyUIFormLayout();
    ~CKyUIFormLayout() override;

    /// Adds a row: a new label with @p label on the left and @p field on the
    /// right. Returns the label, a child of the form (to style it, or to give
    /// it a tool tip). The row is added even when the field is null or
    /// already has a parent.
    CKyUILabel* addRow(const QString& label, CKyUIBaseView* field);
    /// Adds a row of two views of the caller's.
    void addRow(CKyUIBaseView* label, CKyUIBaseView* field);
    /// Adds a row with one view across both columns.
    void addRow(CKyUIBaseView* view);
};

#pragma once

#include "UI/CKyUIObject.h"
#include "UI/CKyUISignal.h"

#include <QtGui/QIcon>

// A command with a text, an icon and check, enable and visibility flags,
// reporting triggered(checked). Not a view. The getters answer from what was
// set: a user toggling a checkable action does not change isChecked().
class COMMONUI_EXPORT CKyUIAction : public CKyUIObject
{
public:
    CKyUIAction();
    ~CKyUIAction() override;

    void setText(const QString& text);
    QString text() const;
    void setIcon(const QIcon& icon);
    // Accepted and ignored.
    void setResourceIcon(const QString& name);
    // Kept only: the entry on screen stays as it is.
    void setEnabled(bool enabled);
    void setCheckable(bool checkable);
    void setChecked(bool checked);
    bool isChecked() const;
    void setVisible(bool visible);

    CKyUISignal<void(bool)>& triggered();
};

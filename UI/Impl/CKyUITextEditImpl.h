#pragma once

#include "UI/CKyUISignal.h"
#include "UI/Impl/CKyUIBaseViewImpl.h"

#include <QtCore/QMetaObject>

class CKyUITextEditImpl : public CKyUIBaseViewImpl
{
public:
    explicit CKyUITextEditImpl(CKyUIObject* owner);
    ~CKyUITextEditImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    // The preferable width of a width class.
    static int WidthFor(int size);

    void SetText(const QString& text);
    const QString& Text() const { return m_text; }
    QVariant RememberedValue() const override;
    bool RestoreRememberedValue(const QVariant& value) override;
    void SetPlaceholderText(const QString& text);
    const QString& PlaceholderText() const { return m_placeholderText; }
    void SetInputMask(const QString& mask);
    const QString& InputMask() const { return m_inputMask; }
    void SetClearButtonEnabled(bool enabled);
    bool IsClearButtonEnabled() const { return m_clearButtonEnabled; }
    void SetFocus();
    void SetInputType(int type);
    // Take effect only while the owner follows its user; otherwise the read-only
    // flag and the input type are kept for when it does.
    void SetReadOnly(bool readOnly);
    void SelectAll();
    void Clear();
    void MoveCursor(int operation, int mode);

    void OnEditTextChanged(const QString& text);
    // Reached only while the owner follows its user.
    void OnEditingFinished();
    void OnFocusLost();
    void OnReturnPressed();

    void SetTextImpl(const QString& text);
    void SetPlaceholderTextImpl(const QString& text);
    void SetInputMaskImpl(const QString& mask);
    void SetClearButtonEnabledImpl(bool enabled);
    void SetFocusImpl();
    void SetInputTypeImpl(int type);
    void SelectAllImpl();
    void SetReadOnlyImpl(bool readOnly);
    void MoveCursorImpl(int operation, int mode);
    void SetInteractiveImpl(bool interactive) override;

    CKyUISignal<void(QString)> textChanged;
    CKyUISignal<void()> editingFinished;
    CKyUISignal<void(QString)> textEdited;
    CKyUISignal<void()> returnPressed;

private:
    QString m_text;
    QString m_inputMask;
    QString m_placeholderText;
    bool m_clearButtonEnabled = false;
    // Kept for the switch; applied then only if they were ever given.
    bool m_readOnly = false;
    bool m_readOnlyGiven = false;
    int m_inputType = 0;
    bool m_inputTypeGiven = false;
    // A focus loss ends the editing only after a change, as in the toolkit,
    // whose own record of it misses the Return that the frontend keeps.
    bool m_changedSinceFinished = false;
    // The widget outlives this object until the event loop deletes it.
    QMetaObject::Connection m_textChangedConnection;
    QMetaObject::Connection m_returnPressedConnection;
};

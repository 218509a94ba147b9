#include "UI/Impl/CKyUITextEditImpl.h"

#include "UI/Impl/qt/CKyUITextEditFrontend.h"

namespace
{
CKyUITextEditFrontend* FrontendOf(const CKyUIObject* owner)
{
    return qobject_cast<CKyUITextEditFrontend*>(owner->getHandle());
}
} // namespace

CKyUITextEditImpl::~CKyUITextEditImpl()
{
    // The widget is deleted later; nothing it reports meanwhile may reach us.
    QObject::disconnect(m_textChangedConnection);
    QObject::disconnect(m_returnPressedConnection);
}

void CKyUITextEditImpl::CreateFrontendControl()
{
    auto* frontend = new CKyUITextEditFrontend;
    frontend->setStyleSheet(QStringLiteral("QLineEdit { }"));
    owner()->setHandle(frontend);
    m_textChangedConnection = QObject::connect(frontend, &QLineEdit::textChanged, frontend,
                                               [this](const QString& text) { OnEditTextChanged(text); });
    m_returnPressedConnection =
        QObject::connect(frontend, &QLineEdit::returnPressed, frontend, [this] { OnReturnPressed(); });
    // editingFinished stays unconnected.
}

void CKyUITextEditImpl::SetTextImpl(const QString& text)
{
    if (CKyUITextEditFrontend* frontend = FrontendOf(owner()))
        frontend->setText(text);
}

void CKyUITextEditImpl::SetPlaceholderTextImpl(const QString& text)
{
    if (CKyUITextEditFrontend* frontend = FrontendOf(owner()))
        frontend->setPlaceholderText(text);
}

void CKyUITextEditImpl::SetInputMaskImpl(const QString& mask)
{
    if (CKyUITextEditFrontend* frontend = FrontendOf(owner()))
        frontend->setInputMask(mask);
}

void CKyUITextEditImpl::SetClearButtonEnabledImpl(bool enabled)
{
    if (CKyUITextEditFrontend* frontend = FrontendOf(owner()))
        frontend->setClearButtonEnabled(enabled);
}

void CKyUITextEditImpl::SetFocusImpl()
{
    if (CKyUITextEditFrontend* frontend = FrontendOf(owner()))
        frontend->setFocus(Qt::OtherFocusReason);
}

void CKyUITextEditImpl::SetInputTypeImpl(int)
{
    // The input type has no effect on the widget.
}

void CKyUITextEditImpl::SelectAllImpl()
{
    if (CKyUITextEditFrontend* frontend = FrontendOf(owner()))
        frontend->selectAll();
}

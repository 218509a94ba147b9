#include "UI/Impl/CKyUITextViewImpl.h"

#include "UI/Impl/qt/CKyUITextViewFrontend.h"

namespace
{
CKyUITextViewFrontend* FrontendOf(const CKyUIObject* owner)
{
    return qobject_cast<CKyUITextViewFrontend*>(owner->getHandle());
}
} // namespace

CKyUITextViewImpl::~CKyUITextViewImpl()
{
    // The widget is deleted later and may still change focus or content
    // meanwhile; from now on it reports to no one.
    if (m_frontend && m_frontend->impl == this)
        m_frontend->impl = nullptr;
}

void CKyUITextViewImpl::CreateFrontendControl()
{
    auto* frontend = new CKyUITextViewFrontend;
    frontend->setStyleSheet(QStringLiteral("QTextEdit { }"));
    frontend->impl = this;
    m_frontend = frontend;
    owner()->setHandle(frontend);
}

void CKyUITextViewImpl::SetTextImpl(const QString& text)
{
    if (CKyUITextViewFrontend* frontend = FrontendOf(owner()))
        frontend->setText(text);
}

void CKyUITextViewImpl::AddTextImpl(const QString& text)
{
    if (CKyUITextViewFrontend* frontend = FrontendOf(owner()))
        frontend->append(text);
}

void CKyUITextViewImpl::SetReadOnly(bool readOnly)
{
    if (CKyUITextViewFrontend* frontend = FrontendOf(owner()))
        frontend->setReadOnly(readOnly);
}

void CKyUITextViewImpl::SetPlaceholderTextImpl(const QString& text)
{
    if (CKyUITextViewFrontend* frontend = FrontendOf(owner()))
        frontend->setPlaceholderText(text);
}

#include "UI/Impl/CKyUITextViewImpl.h"

#include "UI/Impl/qt/CKyUITextViewFrontend.h"

#include <QtCore/QEvent>

namespace
{
CKyUITextViewFrontend* FrontendOf(const CKyUIObject* owner)
{
    return qobject_cast<CKyUITextViewFrontend*>(owner->getHandle());
}

// Takes the focus changes of a widget whose view is gone before its handlers,
// which would report them through the pointer it keeps, can see them.
class FocusChangesToNobody : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        return event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut;
    }
};
} // namespace

CKyUITextViewImpl::~CKyUITextViewImpl()
{
    DisconnectFrontendImpl();
}

void CKyUITextViewImpl::CreateFrontendControl()
{
    auto* frontend = new CKyUITextViewFrontend;
    frontend->setStyleSheet(QStringLiteral("QTextEdit { }"));
    frontend->impl = this;
    owner()->setHandle(frontend);
}

void CKyUITextViewImpl::SetTextImpl(const QString& text)
{
    if (CKyUITextViewFrontend* frontend = FrontendOf(owner()))
        frontend->setText(text);
}

void CKyUITextViewImpl::SetHtmlImpl(const QString& html)
{
    if (CKyUITextViewFrontend* frontend = FrontendOf(owner()))
        frontend->setHtml(html);
}

void CKyUITextViewImpl::SetInteractiveImpl(bool interactive)
{
    CKyUIBaseViewImpl::SetInteractiveImpl(interactive);
    if (!interactive || m_pendingHtml.isEmpty())
        return;
    // The switch reports nothing: the content follows the rendering quietly.
    const QString html = m_pendingHtml;
    m_pendingHtml.clear();
    m_quiet = true;
    SetHtmlImpl(html);
    m_quiet = false;
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

void CKyUITextViewImpl::DisconnectFrontendImpl()
{
    CKyUITextViewFrontend* frontend = FrontendOf(owner());
    if (!frontend)
        return;
    QObject::disconnect(frontend, SIGNAL(textChanged()), frontend, SLOT(OnEditContentChanged()));
    // A child of the widget, so it goes with it.
    frontend->installEventFilter(new FocusChangesToNobody(frontend));
}

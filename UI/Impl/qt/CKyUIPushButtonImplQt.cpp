#include "UI/Impl/CKyUIPushButtonImpl.h"

#include "UI/CKyUIPushButton.h"
#include "UI/Impl/qt/CKyUIPushButtonFrontend.h"
#include "UI/Impl/qt/StyleSheetRewriter.h"

namespace
{
using StyleSheetRewriter::Insertion;

// Letters only after the colon: a numeric weight such as 600 stays.
constexpr const char* kTextAlign = "text-align[ \t]*:[ \ta-zA-Z]*;";
constexpr const char* kFontWeight = "font-weight[ \t]*:[ \ta-zA-Z]*;";
// A button that follows its user replaces any earlier weight, numeric too.
constexpr const char* kAnyFontWeight = "font-weight[ \t]*:[^;}]*;";

QString AlignmentDeclaration(int alignment)
{
    switch (alignment) {
    case CKyUIPushButton::Left:
        return QStringLiteral("text-align:left;");
    case CKyUIPushButton::Right:
        return QStringLiteral("text-align:right;");
    case CKyUIPushButton::Center:
        return QStringLiteral("text-align:center;");
    default:
        return QString();
    }
}
} // namespace

CKyUIPushButtonFrontend* CKyUIPushButtonImpl::GetFrontend() const
{
    return qobject_cast<CKyUIPushButtonFrontend*>(owner()->getHandle());
}

void CKyUIPushButtonImpl::CreateFrontendControl()
{
    auto* button = new CKyUIPushButtonFrontend;
    button->setStyleSheet(QStringLiteral("QPushButton { }"));
    button->impl = this;
    owner()->setHandle(button);
}

void CKyUIPushButtonImpl::SetTextImpl(const QString& text)
{
    if (CKyUIPushButtonFrontend* button = GetFrontend())
        button->setText(text);
}

void CKyUIPushButtonImpl::SetIconImpl(const QIcon& icon)
{
    if (CKyUIPushButtonFrontend* button = GetFrontend())
        button->setIcon(icon);
}

void CKyUIPushButtonImpl::SetTextAlignmentImpl(int alignment)
{
    static const QList<QRegExp> removals = StyleSheetRewriter::Patterns({kTextAlign});
    StyleSheetRewriter::Apply(GetFrontend(), removals, AlignmentDeclaration(alignment),
                              Insertion::BeforeLastBrace);
}

void CKyUIPushButtonImpl::SetBoldTextImpl(bool bold)
{
    static const QList<QRegExp> removals = StyleSheetRewriter::Patterns({kFontWeight});
    static const QList<QRegExp> allRemovals = StyleSheetRewriter::Patterns({kAnyFontWeight});
    const QString declaration =
        bold ? QStringLiteral("font-weight: bold;") : QStringLiteral("font-weight: normal;");
    StyleSheetRewriter::Apply(GetFrontend(), owner()->isInteractive() ? allRemovals : removals, declaration,
                              Insertion::BeforeLastBrace);
}

void CKyUIPushButtonImpl::SetToolTipImpl(const QString& toolTip)
{
    if (CKyUIPushButtonFrontend* button = GetFrontend())
        button->setToolTip(toolTip);
}

void CKyUIPushButtonImpl::SetCheckableImpl(bool checkable)
{
    if (CKyUIPushButtonFrontend* button = GetFrontend())
        button->setCheckable(checkable);
}

void CKyUIPushButtonImpl::SetResourceIconImpl(const QString& path)
{
    SetIcon(QIcon(path));
}

bool CKyUIPushButtonImpl::ClickedStateImpl() const
{
    CKyUIPushButtonFrontend* button = GetFrontend();
    return !button || !button->isCheckable() || button->isChecked();
}

void CKyUIPushButtonImpl::SetInteractiveImpl(bool interactive)
{
    CKyUIBaseViewImpl::SetInteractiveImpl(interactive);
    CKyUIPushButtonFrontend* button = GetFrontend();
    if (!interactive || !button)
        return;
    if (!m_pendingResourceIcon.isEmpty())
        SetResourceIconImpl(m_pendingResourceIcon);
    LinkUserInput(QObject::connect(button, &QAbstractButton::pressed, button, [this] { pressed.Emit(); }));
    LinkUserInput(QObject::connect(button, &QAbstractButton::released, button, [this] { released.Emit(); }));
}

void CKyUIPushButtonImpl::DisconnectFrontendImpl()
{
    CKyUIPushButtonFrontend* button = GetFrontend();
    if (!button)
        return;
    QObject::disconnect(button, SIGNAL(pressed()), button, SLOT(OnPressed()));
    QObject::disconnect(button, SIGNAL(released()), button, SLOT(OnReleased()));
    QObject::disconnect(button, SIGNAL(clicked()), button, SLOT(OnClicked()));
}

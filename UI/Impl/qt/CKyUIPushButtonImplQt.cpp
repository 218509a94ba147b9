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
    const QString declaration =
        bold ? QStringLiteral("font-weight: bold;") : QStringLiteral("font-weight: normal;");
    StyleSheetRewriter::Apply(GetFrontend(), removals, declaration, Insertion::BeforeLastBrace);
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

void CKyUIPushButtonImpl::DisconnectFrontendImpl()
{
    CKyUIPushButtonFrontend* button = GetFrontend();
    if (!button)
        return;
    QObject::disconnect(button, SIGNAL(pressed()), button, SLOT(OnPressed()));
    QObject::disconnect(button, SIGNAL(released()), button, SLOT(OnReleased()));
    QObject::disconnect(button, SIGNAL(clicked()), button, SLOT(OnClicked()));
}

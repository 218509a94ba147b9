#include "UI/Impl/CKyUILabelImpl.h"

#include "UI/CKyUIBaseView.h"
#include "UI/Impl/qt/StyleSheetRewriter.h"

#include <QtWidgets/QLabel>

namespace
{
using StyleSheetRewriter::Insertion;

// The value classes admit 1 to 9 but not 0: a size of 10 or 20 pixels is never
// removed again, and the newer declaration after it wins.
constexpr const char* kFontWeight = "font-weight[ \t]*:[ \ta-zA-Z1-9]*;";
constexpr const char* kFontSize = "font-size[ \t]*:[ \ta-zA-Z1-9]*;";
// A label that follows its user replaces the earlier declaration whatever its
// value, so that the sheet keeps one of each.
constexpr const char* kAnyFontWeight = "font-weight[ \t]*:[^;}]*;";
constexpr const char* kAnyFontSize = "font-size[ \t]*:[^;}]*;";

constexpr int kIconSize = 25;
} // namespace

QLabel* CKyUILabelImpl::GetLabel() const
{
    return qobject_cast<QLabel*>(owner()->getHandle());
}

void CKyUILabelImpl::CreateFrontendControl()
{
    auto* label = new QLabel(nullptr, Qt::WindowFlags());
    label->setStyleSheet(QStringLiteral("QLabel { }"));
    owner()->setHandle(label);
}

void CKyUILabelImpl::SetTextImpl(const QString& text)
{
    if (QLabel* label = GetLabel())
        label->setText(text);
}

void CKyUILabelImpl::SetIconImpl(const QIcon& icon)
{
    if (QLabel* label = GetLabel())
        label->setPixmap(icon.pixmap(QSize(kIconSize, kIconSize), QIcon::Normal, QIcon::Off));
}

void CKyUILabelImpl::SetBoldTextImpl(bool bold)
{
    static const QList<QRegExp> removals = StyleSheetRewriter::Patterns({kFontWeight});
    static const QList<QRegExp> allRemovals = StyleSheetRewriter::Patterns({kAnyFontWeight});
    const QString declaration =
        bold ? QStringLiteral("font-weight: bold;") : QStringLiteral("font-weight: normal;");
    StyleSheetRewriter::Apply(GetLabel(), owner()->isInteractive() ? allRemovals : removals, declaration,
                              Insertion::BeforeLastBrace);
}

void CKyUILabelImpl::SetFontSizeImpl(int size)
{
    static const QList<QRegExp> removals = StyleSheetRewriter::Patterns({kFontSize});
    static const QList<QRegExp> allRemovals = StyleSheetRewriter::Patterns({kAnyFontSize});
    const QString declaration = QStringLiteral("font-size:%1px;").arg(size);
    StyleSheetRewriter::Apply(GetLabel(), owner()->isInteractive() ? allRemovals : removals, declaration,
                              Insertion::BeforeLastBrace);
}

void CKyUILabelImpl::SetWordWrapImpl(bool on)
{
    if (QLabel* label = GetLabel())
        label->setWordWrap(on);
}

void CKyUILabelImpl::SetToolTipImpl(const QString& toolTip)
{
    if (QLabel* label = GetLabel())
        label->setToolTip(toolTip);
}

void CKyUILabelImpl::SetBuddyImpl(CKyUIBaseView* buddy)
{
    QLabel* label = GetLabel();
    QWidget* widget = WidgetOf(buddy);
    if (label && widget)
        label->setBuddy(widget);
}

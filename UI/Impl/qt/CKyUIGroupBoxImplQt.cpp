#include "UI/Impl/CKyUIGroupBoxImpl.h"

#include "UI/Impl/qt/CKyUIGroupBoxFrontend.h"
#include "UI/Impl/qt/KyBoxPlacement.h"
#include "UI/Impl/qt/KyThemeVariant.h"
#include "UI/Impl/qt/StyleSheetRewriter.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QVBoxLayout>

namespace
{
CKyUIGroupBoxFrontend* FrontendOf(const CKyUIObject* owner)
{
    return qobject_cast<CKyUIGroupBoxFrontend*>(owner->getHandle());
}

QBoxLayout* LayoutOf(const CKyUIObject* owner)
{
    CKyUIGroupBoxFrontend* frontend = FrontendOf(owner);
    return frontend ? qobject_cast<QBoxLayout*>(frontend->layout()) : nullptr;
}

// Room for the title inside the box, above the children.
constexpr const char* kTitleRoom = "padding-top:[ \t]*3ex;";
} // namespace

void CKyUIGroupBoxImpl::CreateFrontendControl()
{
    auto* frontend = new CKyUIGroupBoxFrontend;
    frontend->impl = this;
    owner()->setHandle(frontend);
    // An empty rule, so that the dialog's theme governs the box.
    frontend->setStyleSheet(QStringLiteral("QGroupBox { }"));
    if (IsVertical())
        new QVBoxLayout(frontend);
    else
        new QHBoxLayout(frontend);
}

void CKyUIGroupBoxImpl::AddViewImpl(CKyUIBaseView* view, float stretch)
{
    KyBoxPlacement::Add(LayoutOf(owner()), view, stretch, IsVertical(), QSizePolicy::Minimum);
    if (m_collapsed && owner()->isInteractive())
        ShowContentImpl(false);
}

void CKyUIGroupBoxImpl::InsertViewImpl(CKyUIBaseView* view, int index, float stretch)
{
    KyBoxPlacement::Insert(LayoutOf(owner()), view, index, stretch, QSizePolicy::Minimum);
    if (m_collapsed && owner()->isInteractive())
        ShowContentImpl(false);
}

void CKyUIGroupBoxImpl::SetTitleImpl(const QString& title)
{
    if (CKyUIGroupBoxFrontend* frontend = FrontendOf(owner()))
        frontend->setTitle(title);
    // The variants show titles; the compiled-in theme leaves them no room.
    if (owner()->isInteractive() || KyThemeVariant::Current() != CKyUIStyle::Variant::Default)
        GiveTitleRoomImpl(!title.isEmpty());
}

void CKyUIGroupBoxImpl::UseMarginImpl(bool use)
{
    const int margin = use ? 5 : 0;
    SetContentsMarginsImpl(margin, margin, margin, margin);
}

void CKyUIGroupBoxImpl::SetContentsMarginsImpl(int left, int top, int right, int bottom)
{
    if (QBoxLayout* layout = LayoutOf(owner()))
        layout->setContentsMargins(left, top, right, bottom);
}

void CKyUIGroupBoxImpl::SetSpacingImpl(int spacing)
{
    if (QBoxLayout* layout = LayoutOf(owner()))
        layout->setSpacing(spacing);
}

void CKyUIGroupBoxImpl::SetCollapsedImpl(bool collapsed)
{
    // Collapsing is bookkeeping only, unless the box follows its user.
    if (owner()->isInteractive())
        ShowContentImpl(!collapsed);
}

void CKyUIGroupBoxImpl::SetInteractiveImpl(bool interactive)
{
    CKyUIBaseViewImpl::SetInteractiveImpl(interactive);
    ShowContentImpl(!(interactive && m_collapsed));
    GiveTitleRoomImpl((interactive || KyThemeVariant::Current() != CKyUIStyle::Variant::Default) &&
                      !m_title.isEmpty());
}

void CKyUIGroupBoxImpl::ShowContentImpl(bool show)
{
    if (show) {
        for (const QPointer<QWidget>& widget : m_hiddenContent) {
            if (widget)
                widget->show();
        }
        m_hiddenContent.clear();
        return;
    }
    QBoxLayout* layout = LayoutOf(owner());
    for (int i = 0; layout && i < layout->count(); ++i) {
        QWidget* widget = layout->itemAt(i)->widget();
        // A child hidden on purpose (by its client, or already by us) is left
        // alone: it stays hidden when the box opens again. One that is merely
        // not shown yet would be shown with the box.
        const bool hiddenOnPurpose =
            widget && widget->isHidden() && widget->testAttribute(Qt::WA_WState_ExplicitShowHide);
        if (widget && !hiddenOnPurpose) {
            widget->hide();
            m_hiddenContent.append(widget);
        }
    }
}

void CKyUIGroupBoxImpl::GiveTitleRoomImpl(bool room)
{
    CKyUIGroupBoxFrontend* frontend = FrontendOf(owner());
    if (!frontend)
        return;
    static const QList<QRegExp> removals = StyleSheetRewriter::Patterns({kTitleRoom});
    const QString sheet = StyleSheetRewriter::Rewrite(frontend->styleSheet(), removals,
                                                      room ? QStringLiteral("padding-top: 3ex;") : QString(),
                                                      StyleSheetRewriter::Insertion::BeforeLastBrace);
    // Setting a sheet polishes the box again: only when it changes. A box not
    // polished yet would take the sheet without laying its frame out anew.
    if (sheet == frontend->styleSheet())
        return;
    frontend->ensurePolished();
    frontend->setStyleSheet(sheet);
}

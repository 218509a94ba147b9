#include "UI/Impl/CKyUIBaseViewImpl.h"

#include "UI/CKyUIObject.h"
#include "UI/Impl/qt/StyleSheetRewriter.h"

#include <QtCore/QEvent>
#include <QtGui/QColor>
#include <QtGui/QPalette>
#include <QtWidgets/QWidget>

namespace
{
QString ColorName(int red, int green, int blue)
{
    QColor color;
    color.setRgb(red, green, blue, 255);
    return color.name();
}

using StyleSheetRewriter::Insertion;

// Shared by the border rules: a shorthand "border: ...;" and a lone style
// declaration go, earlier width declarations stay.
constexpr const char* kBorderShorthand = "border[ \t]*:[ \t]*[1-9a-zA-Z \t]*;";
constexpr const char* kBorderStyle = "border-style[ \t]*:[ \t]*[1-9a-zA-Z \t]*;";
constexpr const char* kBorderSideStyle = "border-[a-z]*-style[ \t]*:[ \t]*[1-9a-zA-Z \t]*;";
constexpr const char* kBorderLeftWidth = "border-left-width[ \t]*:[ \t]*[1-9a-zA-Z]*;";
constexpr const char* kBorderTopWidth = "border-top-width[ \t]*:[ \t]*[1-9a-zA-Z]*;";
constexpr const char* kBorderRightWidth = "border-right-width[ \t]*:[ \t]*[1-9a-zA-Z]*;";
constexpr const char* kBorderBottomWidth = "border-bottom-width[ \t]*:[ \t]*[1-9a-zA-Z]*;";
// Matches a value of exactly one character only, so an earlier colour stays.
constexpr const char* kBorderColor = "border-color[ \t]*:[ \t]*[1-9a-zA-Z];";
constexpr const char* kBackgroundColor = "background-color[ \t]*:[ \t#a-zA-Z1-9]*;";
// Written only for a view that follows its user, so it may match any value.
constexpr const char* kBorderRadius = "border-radius[ \t]*:[^;}]*;";

// A preferable size the layouts honour: they give the widget no less. A
// missing (non-positive) side keeps the widget's own minimum.
void SetLeastSize(QWidget* widget, int width, int height)
{
    if (width > 0)
        widget->setMinimumWidth(width);
    if (height > 0)
        widget->setMinimumHeight(height);
}

void SetTextBrush(QWidget* widget, const QBrush& brush)
{
    QPalette palette = widget->palette();
    palette.setBrush(QPalette::All, QPalette::Text, brush);
    widget->setPalette(palette);
}

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
// Each time Qt 6 polishes a widget with a style sheet again (its sheet
// rewritten, the dialog's theme arriving), it puts back the palette the widget
// had at the polish before, which drops a text colour given in between; Qt 5
// keeps it. This watcher gives the colour back whenever the palette loses it.
class TextColourKeeper : public QObject
{
public:
    static void Keep(QWidget* widget, const QBrush& brush)
    {
        auto* keeper =
            static_cast<TextColourKeeper*>(widget->findChild<QObject*>(Name(), Qt::FindDirectChildrenOnly));
        if (!keeper)
            keeper = new TextColourKeeper(widget);
        keeper->m_brush = brush;
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::PaletteChange) {
            auto* widget = static_cast<QWidget*>(watched);
            if (widget->palette().brush(QPalette::Active, QPalette::Text) != m_brush)
                SetTextBrush(widget, m_brush);
        }
        return false;
    }

private:
    explicit TextColourKeeper(QWidget* widget)
        : QObject(widget)
    {
        setObjectName(Name());
        widget->installEventFilter(this);
    }

    static QString Name() { return QStringLiteral("commonui_text_colour"); }

    QBrush m_brush;
};
#endif
} // namespace

QWidget* CKyUIBaseViewImpl::WidgetOf(const CKyUIObject* object)
{
    QObject* handle = object ? object->getHandle() : nullptr;
    return handle && handle->isWidgetType() ? static_cast<QWidget*>(handle) : nullptr;
}

QWidget* CKyUIBaseViewImpl::GetWidget() const
{
    return WidgetOf(owner());
}

void CKyUIBaseViewImpl::UpdateImpl()
{
    if (QWidget* widget = GetWidget())
        widget->update();
}

void CKyUIBaseViewImpl::SetEnabledImpl(bool enabled)
{
    if (QWidget* widget = GetWidget())
        widget->setEnabled(enabled);
}

void CKyUIBaseViewImpl::SetVisibleImpl(bool visible)
{
    if (QWidget* widget = GetWidget())
        widget->setVisible(visible);
}

void CKyUIBaseViewImpl::SetMinimumWidthImpl(int width)
{
    if (QWidget* widget = GetWidget())
        widget->setMinimumWidth(width);
}

void CKyUIBaseViewImpl::SetMinimumHeightImpl(int height)
{
    if (QWidget* widget = GetWidget())
        widget->setMinimumHeight(height);
}

void CKyUIBaseViewImpl::SetMaximumWidthImpl(int width)
{
    if (QWidget* widget = GetWidget())
        widget->setMaximumWidth(width);
}

void CKyUIBaseViewImpl::SetMaximumHeightImpl(int height)
{
    if (QWidget* widget = GetWidget())
        widget->setMaximumHeight(height);
}

void CKyUIBaseViewImpl::SetFocusImpl()
{
    if (QWidget* widget = GetWidget())
        widget->setFocus(Qt::OtherFocusReason);
}

void CKyUIBaseViewImpl::SetFocusReasonImpl(int reason)
{
    if (QWidget* widget = GetWidget())
        widget->setFocus(static_cast<Qt::FocusReason>(reason));
}

void CKyUIBaseViewImpl::ResizeImpl(int width, int height)
{
    QWidget* widget = GetWidget();
    if (!widget)
        return;
    widget->resize(width < 0 ? widget->width() : width, height < 0 ? widget->height() : height);
}

void CKyUIBaseViewImpl::SetPreferrableSizeImpl(int width, int height)
{
    // Off, the preferable size is a record only. On, the widget starts at it
    // and layouts give it no less.
    QWidget* widget = GetWidget();
    if (!widget || !owner()->isInteractive())
        return;
    SetLeastSize(widget, width, height);
    ResizeImpl(width > 0 ? width : -1, height > 0 ? height : -1);
}

void CKyUIBaseViewImpl::SetCornerRadiusImpl(float radius)
{
    // Off, the radius is accepted and ignored.
    if (!owner()->isInteractive())
        return;
    static const QList<QRegExp> removals = StyleSheetRewriter::Patterns({kBorderRadius});
    const QString declaration =
        QStringLiteral("border-radius:%1px;").arg(QString::number(static_cast<double>(radius), 'g', 6));
    StyleSheetRewriter::Apply(GetWidget(), removals, declaration, Insertion::BeforeLastBraceAfterStart);
}

void CKyUIBaseViewImpl::SetInteractiveImpl(bool interactive)
{
    CKyUIObjectImpl::SetInteractiveImpl(interactive);
    if (!interactive)
        return;
    QWidget* widget = GetWidget();
    if (widget && (m_preferableWidth > 0 || m_preferableHeight > 0))
        SetLeastSize(widget, m_preferableWidth, m_preferableHeight);
    if (m_width > 0 || m_height > 0)
        ResizeImpl(m_width > 0 ? m_width : -1, m_height > 0 ? m_height : -1);
    if (m_cornerRadiusGiven)
        SetCornerRadiusImpl(m_cornerRadius);
}

void CKyUIBaseViewImpl::SetFocusPolicyImpl(int policy)
{
    // Any combination of the toolkit's focus flags passes; a number with other
    // bits set is no focus policy at all and changes nothing.
    if (policy & ~int(Qt::WheelFocus))
        return;
    if (QWidget* widget = GetWidget())
        widget->setFocusPolicy(static_cast<Qt::FocusPolicy>(policy));
}

void CKyUIBaseViewImpl::SetTabOrderImpl(CKyUIObject* first, CKyUIObject* second)
{
    QWidget* firstWidget = WidgetOf(first);
    QWidget* secondWidget = WidgetOf(second);
    if (firstWidget && secondWidget)
        QWidget::setTabOrder(firstWidget, secondWidget);
}

void CKyUIBaseViewImpl::SetBorderWidthImpl(float width)
{
    static const QList<QRegExp> removals =
        StyleSheetRewriter::Patterns({kBorderShorthand, kBorderStyle, kBorderLeftWidth, kBorderTopWidth,
                                      kBorderRightWidth, kBorderBottomWidth});
    const QString declaration =
        QStringLiteral("border-style:solid;border-width:%1px;").arg(static_cast<double>(width));
    StyleSheetRewriter::Apply(GetWidget(), removals, declaration, Insertion::BeforeLastBraceAfterStart);
}

void CKyUIBaseViewImpl::SetBorderWidthImpl(float left, float top, float right, float bottom)
{
    static const QList<QRegExp> removals =
        StyleSheetRewriter::Patterns({kBorderShorthand, kBorderStyle, kBorderSideStyle, kBorderLeftWidth,
                                      kBorderTopWidth, kBorderRightWidth, kBorderBottomWidth});
    const auto number = [](float value) { return QString::number(static_cast<double>(value), 'g', 6); };
    const QString declaration =
        QStringLiteral("border-left-style:solid;border-top-style:solid;border-right-style:solid;"
                       "border-bottom-style:solid;border-left-width:%1px;border-top-width:%2px;"
                       "border-right-width:%3px;border-bottom-width:%4px;")
            .arg(number(left), number(top), number(right), number(bottom));
    StyleSheetRewriter::Apply(GetWidget(), removals, declaration, Insertion::BeforeLastBraceAfterStart);
}

void CKyUIBaseViewImpl::SetBorderColorImpl(int red, int green, int blue)
{
    static const QList<QRegExp> removals = StyleSheetRewriter::Patterns({kBorderShorthand, kBorderColor});
    const QString declaration = QStringLiteral("border-color: %1;").arg(ColorName(red, green, blue));
    StyleSheetRewriter::Apply(GetWidget(), removals, declaration, Insertion::BeforeLastBraceAfterStart);
}

void CKyUIBaseViewImpl::SetBackgroundColorImpl(int red, int green, int blue)
{
    static const QList<QRegExp> removals = StyleSheetRewriter::Patterns({kBackgroundColor});
    const QString declaration = QStringLiteral("background-color: %1;").arg(ColorName(red, green, blue));
    StyleSheetRewriter::Apply(GetWidget(), removals, declaration, Insertion::BeforeLastBrace);
}

void CKyUIBaseViewImpl::SetTextColorImpl(int red, int green, int blue)
{
    QWidget* widget = GetWidget();
    if (!widget)
        return;
    const QBrush brush(QColor(red, green, blue, 255), Qt::SolidPattern);
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    TextColourKeeper::Keep(widget, brush);
#endif
    SetTextBrush(widget, brush);
}

void CKyUIBaseViewImpl::SetHelpTextImpl(HelpText kind, const QString& text)
{
    QWidget* widget = GetWidget();
    if (!widget)
        return;
    switch (kind) {
    case HelpText::ToolTip:
        widget->setToolTip(text);
        break;
    case HelpText::StatusTip:
        widget->setStatusTip(text);
        break;
    case HelpText::WhatsThis:
        widget->setWhatsThis(text);
        break;
    case HelpText::AccessibleName:
        widget->setAccessibleName(text);
        break;
    case HelpText::AccessibleDescription:
        widget->setAccessibleDescription(text);
        break;
    case HelpText::Count:
        break;
    }
}

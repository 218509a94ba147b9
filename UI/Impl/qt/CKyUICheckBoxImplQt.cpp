#include "UI/Impl/CKyUICheckBoxImpl.h"

#include "UI/Impl/qt/StyleSheetRewriter.h"

#include <QtGui/QIcon>
#include <QtWidgets/QCheckBox>

namespace
{
QCheckBox* CheckBoxOf(const CKyUIObject* owner)
{
    return qobject_cast<QCheckBox*>(owner->getHandle());
}
} // namespace

void CKyUICheckBoxImpl::CreateFrontendControl()
{
    auto* checkBox = new QCheckBox;
    checkBox->setStyleSheet(QStringLiteral("QCheckBox { }"));
    // The height is fixed whatever the text; the theme agrees.
    checkBox->setMinimumHeight(25);
    checkBox->setMaximumHeight(25);
    owner()->setHandle(checkBox);
}

void CKyUICheckBoxImpl::SetTextImpl(const QString& text)
{
    if (QCheckBox* checkBox = CheckBoxOf(owner()))
        checkBox->setText(text);
}

void CKyUICheckBoxImpl::SetCheckedImpl(bool checked)
{
    if (QCheckBox* checkBox = CheckBoxOf(owner()))
        checkBox->setChecked(checked);
}

void CKyUICheckBoxImpl::SetTextSizeImpl(float size)
{
    // Inert unless the box follows its user.
    if (!owner()->isInteractive() || size <= 0)
        return;
    // Any earlier size goes, whatever its digits, so the sheet does not grow.
    static const QList<QRegExp> removals = StyleSheetRewriter::Patterns({"font-size[ \t]*:[^;}]*;"});
    StyleSheetRewriter::Apply(CheckBoxOf(owner()), removals,
                              QStringLiteral("font-size: %1pt;").arg(double(size)),
                              StyleSheetRewriter::Insertion::BeforeLastBrace);
}

void CKyUICheckBoxImpl::SetResourceIconImpl(const QString& name)
{
    if (!owner()->isInteractive())
        return;
    if (QCheckBox* checkBox = CheckBoxOf(owner()))
        checkBox->setIcon(QIcon(name));
}

void CKyUICheckBoxImpl::SetInteractiveImpl(bool interactive)
{
    CKyUIBaseViewImpl::SetInteractiveImpl(interactive);
    QCheckBox* checkBox = CheckBoxOf(owner());
    if (!interactive || !checkBox)
        return;
    // The widget may show a click made while the box ignored its user.
    checkBox->setChecked(m_checked);
    SetTextSizeImpl(m_textSize);
    if (!m_resourceIcon.isEmpty())
        SetResourceIconImpl(m_resourceIcon);
    // clicked, not toggled: the program's own setChecked reports by itself.
    LinkUserInput(QObject::connect(checkBox, &QAbstractButton::clicked, checkBox,
                                   [this](bool checked) { OnClicked(checked); }));
}

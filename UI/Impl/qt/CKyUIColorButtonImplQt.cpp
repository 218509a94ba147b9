#include "UI/Impl/CKyUIColorButtonImpl.h"

#include "UI/Impl/qt/KyControlSheet.h"
#include "UI/Impl/qt/KyToolkitDialog.h"

#include <QtGui/QPainter>
#include <QtGui/QPixmap>
#include <QtWidgets/QColorDialog>
#include <QtWidgets/QPushButton>

namespace
{
const QSize kSwatch(32, 14);

QIcon Swatch(const QColor& color)
{
    QPixmap pixmap(kSwatch);
    pixmap.fill(color);
    QPainter painter(&pixmap);
    painter.setPen(Qt::black);
    painter.drawRect(0, 0, kSwatch.width() - 1, kSwatch.height() - 1);
    return QIcon(pixmap);
}
} // namespace

CKyUIColorButtonImpl::~CKyUIColorButtonImpl()
{
    // The widget outlives this object until its deferred deletion; a chooser
    // still running ends.
    QObject::disconnect(m_clickConnection);
    KyToolkitDialog::Release(m_chooser);
}

void CKyUIColorButtonImpl::CreateFrontendControl()
{
    auto* button = new QPushButton(nullptr);
    KyControlSheet::Apply(button, QStringLiteral("colorbutton"));
    button->setIconSize(kSwatch);
    owner()->setHandle(button);
    SetColorImpl(m_color);
    m_clickConnection = QObject::connect(button, &QPushButton::clicked, [this]() { OnClicked(); });
}

void CKyUIColorButtonImpl::SetColorImpl(const QColor& color)
{
    if (auto* button = qobject_cast<QPushButton*>(owner()->getHandle())) {
        button->setIcon(Swatch(color));
        button->setText(color.name().toUpper());
    }
}

bool CKyUIColorButtonImpl::ChooseColorImpl(QColor& chosen)
{
    auto* button = qobject_cast<QPushButton*>(owner()->getHandle());
    if (!button || m_chooser)
        return false;
    auto* chooser = new QColorDialog(m_color, nullptr);
    chooser->setOption(QColorDialog::DontUseNativeDialog, true);
    if (!m_chooserTitle.isEmpty())
        chooser->setWindowTitle(m_chooserTitle);
    KyToolkitDialog::ApplyTheme(chooser, QStringLiteral("colordialog"));
    KyToolkitDialog::PlaceOver(chooser, button->window());
    m_chooser = chooser;
    const Lifetime lifetime = GetLifetime();
    const bool accepted = KyToolkitDialog::RunModal(chooser);
    if (!lifetime.Alive())
        return false; // released with this object
    chosen = chooser->currentColor();
    m_chooser = nullptr;
    delete chooser;
    return accepted;
}

#pragma once

#include "UI/CKyUISignal.h"
#include "UI/Impl/CKyUIBaseViewImpl.h"

#include <QtCore/QMetaObject>
#include <QtCore/QPointer>
#include <QtGui/QColor>

class QDialog;

// The colour shown; a click runs the toolkit's colour chooser.
class CKyUIColorButtonImpl : public CKyUIBaseViewImpl
{
public:
    explicit CKyUIColorButtonImpl(CKyUIObject* owner);
    ~CKyUIColorButtonImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    void SetColor(const QColor& color);
    const QColor& Color() const { return m_color; }
    QVariant RememberedValue() const override;
    bool RestoreRememberedValue(const QVariant& value) override;
    void SetChooserTitle(const QString& title) { m_chooserTitle = title; }
    const QString& ChooserTitle() const { return m_chooserTitle; }

    // Runs the chooser, telling the host around the run.
    void OnClicked();

    // Toolkit steps; each does nothing unless the handle is a QPushButton.
    void SetColorImpl(const QColor& color);
    // False on cancel and when this object went during the run.
    bool ChooseColorImpl(QColor& chosen);

    CKyUISignal<void(QColor)> colorChanged;

private:
    QColor m_color = Qt::black;
    QString m_chooserTitle;
    QMetaObject::Connection m_clickConnection;
    QPointer<QDialog> m_chooser; // while it runs
};

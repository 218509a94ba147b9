#pragma once

#include "UI/Impl/CKyUIBaseViewImpl.h"

// The bar's range, value and text as given. The busy mode is the widget's
// empty range; the stored range stays to be shown again afterwards.
class CKyUIProgressBarImpl : public CKyUIBaseViewImpl
{
public:
    explicit CKyUIProgressBarImpl(CKyUIObject* owner);

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    void SetRange(int minimum, int maximum);
    int Minimum() const { return m_minimum; }
    int Maximum() const { return m_maximum; }
    void SetValue(int value);
    int Value() const { return m_value; }
    void Reset();
    void SetProgress(long long received, long long total);
    void SetBusy(bool busy);
    bool IsBusy() const { return m_busy; }
    void SetFormat(const QString& format);
    const QString& Format() const { return m_format; }
    void SetTextVisible(bool visible);
    bool IsTextVisible() const { return m_textVisible; }

    // The range shown is empty while busy.
    void SetRangeImpl(int minimum, int maximum);
    void SetValueImpl(int value);
    void ResetImpl();
    void SetFormatImpl(const QString& format);
    void SetTextVisibleImpl(bool visible);

private:
    void ShowRange();

    int m_minimum = 0;
    int m_maximum = 100;
    int m_value = 0;
    bool m_busy = false;
    QString m_format = QStringLiteral("%p%");
    bool m_textVisible = true;
};

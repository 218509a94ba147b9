#include "UI/Impl/CKyUIProgressBarImpl.h"

#include <limits>

CKyUIProgressBarImpl::CKyUIProgressBarImpl(CKyUIObject* owner)
    : CKyUIBaseViewImpl(owner)
{}

QString CKyUIProgressBarImpl::GetFrontendClassName()
{
    return QStringLiteral("QProgressBar");
}

void CKyUIProgressBarImpl::SetRange(int minimum, int maximum)
{
    m_minimum = minimum;
    m_maximum = maximum < minimum ? minimum : maximum;
    if (m_value < m_minimum || m_value > m_maximum)
        m_value = m_minimum;
    // An empty range of 0 to 0 is how a caller asks for the busy mode.
    m_busy = m_minimum == 0 && m_maximum == 0;
    ShowRange();
}

void CKyUIProgressBarImpl::ShowRange()
{
    if (m_busy) {
        SetRangeImpl(0, 0);
        return;
    }
    SetRangeImpl(m_minimum, m_maximum);
    SetValueImpl(m_value);
}

void CKyUIProgressBarImpl::SetValue(int value)
{
    if (value < m_minimum || value > m_maximum)
        return;
    m_value = value;
    SetValueImpl(value);
}

void CKyUIProgressBarImpl::Reset()
{
    m_value = m_minimum;
    ResetImpl();
}

void CKyUIProgressBarImpl::SetProgress(long long received, long long total)
{
    if (total <= 0) {
        SetBusy(true);
        return;
    }
    received = received < 0 ? 0 : (received > total ? total : received);
    while (total > std::numeric_limits<int>::max()) {
        total >>= 1;
        received >>= 1;
    }
    m_busy = false;
    m_minimum = 0;
    m_maximum = static_cast<int>(total);
    m_value = static_cast<int>(received);
    ShowRange();
}

void CKyUIProgressBarImpl::SetBusy(bool busy)
{
    if (busy == m_busy)
        return;
    m_busy = busy;
    ShowRange();
}

void CKyUIProgressBarImpl::SetFormat(const QString& format)
{
    if (format == m_format)
        return;
    m_format = format;
    SetFormatImpl(format);
}

void CKyUIProgressBarImpl::SetTextVisible(bool visible)
{
    m_textVisible = visible;
    SetTextVisibleImpl(visible);
}

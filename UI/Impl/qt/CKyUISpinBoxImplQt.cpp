#include "UI/Impl/CKyUISpinBoxImpl.h"

#include "UI/CKyUIObject.h"
#include "UI/Impl/qt/CKyUISpinBoxFrontend.h"
#include "UI/Impl/qt/KyControlSheet.h"

namespace
{
template <typename T> struct Widgets;
template <> struct Widgets<int>
{
    using Toolkit = QSpinBox;
    using Frontend = CKyUISpinBoxFrontend;
    static constexpr const char* Name = "QSpinBox";
};
template <> struct Widgets<double>
{
    using Toolkit = QDoubleSpinBox;
    using Frontend = CKyUIDoubleSpinBoxFrontend;
    static constexpr const char* Name = "QDoubleSpinBox";
};

template <typename T> typename Widgets<T>::Toolkit* BoxOf(CKyUIObject* owner)
{
    return qobject_cast<typename Widgets<T>::Toolkit*>(owner->getHandle());
}

template <typename T> void SetDecimalsOf(typename Widgets<T>::Toolkit*, int) {}
template <> void SetDecimalsOf<double>(QDoubleSpinBox* box, int decimals)
{
    box->setDecimals(decimals);
}
} // namespace

template <typename T> CKyUINumberFieldImpl<T>::~CKyUINumberFieldImpl()
{
    // The widget outlives this object until its deferred deletion.
    for (const QMetaObject::Connection& connection : m_connections)
        QObject::disconnect(connection);
}

template <typename T> QString CKyUINumberFieldImpl<T>::GetFrontendClassName()
{
    return QString::fromLatin1(Widgets<T>::Name);
}

template <typename T> void CKyUINumberFieldImpl<T>::CreateFrontendControl()
{
    using Toolkit = typename Widgets<T>::Toolkit;
    auto* box = new typename Widgets<T>::Frontend;
    KyControlSheet::Apply(box, QStringLiteral("spinbox"));
    // A typed number counts once, when the user is done with it, not at every
    // keystroke; arrows and the wheel still count each step.
    box->setKeyboardTracking(false);
    owner()->setHandle(box);
    m_connections.push_back(QObject::connect(box, QOverload<T>::of(&Toolkit::valueChanged),
                                             [this](T value) { OnValueChanged(value); }));
    m_connections.push_back(
        QObject::connect(box, &QAbstractSpinBox::editingFinished, [this]() { OnEditingFinished(); }));
}

template <typename T> void CKyUINumberFieldImpl<T>::SetRangeImpl(T minimum, T maximum)
{
    if (auto* box = BoxOf<T>(owner()))
        box->setRange(minimum, maximum);
}

template <typename T> void CKyUINumberFieldImpl<T>::SetValueImpl(T value)
{
    if (auto* box = BoxOf<T>(owner()))
        box->setValue(value);
}

template <typename T> void CKyUINumberFieldImpl<T>::SetSingleStepImpl(T step)
{
    if (auto* box = BoxOf<T>(owner()))
        box->setSingleStep(step);
}

template <typename T> void CKyUINumberFieldImpl<T>::SetPrefixImpl(const QString& prefix)
{
    if (auto* box = BoxOf<T>(owner()))
        box->setPrefix(prefix);
}

template <typename T> void CKyUINumberFieldImpl<T>::SetSuffixImpl(const QString& suffix)
{
    if (auto* box = BoxOf<T>(owner()))
        box->setSuffix(suffix);
}

template <typename T> void CKyUINumberFieldImpl<T>::SetDecimalsImpl(int decimals)
{
    if (auto* box = BoxOf<T>(owner()))
        SetDecimalsOf<T>(box, decimals);
}

template class CKyUINumberFieldImpl<int>;
template class CKyUINumberFieldImpl<double>;

#pragma once

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUISignal.h"

#include <QtCore/QString>

/// A field for a decimal number, with arrows, a range, a step and a unit
/// text before or after the number ("mm", "°").
///
/// The user changes the value with the arrows beside the field, the arrow
/// and page keys, the mouse wheel, or by typing. A typed number may leave the
/// range while it is typed; Return or leaving the field brings it to the
/// nearest bound, and an empty field goes back to the value it had.
/// valueChanged() is emitted once for every change of the value, by the user
/// or by the program: once per arrow step, once for a typed number (when
/// Return is pressed or the field loses focus), never for a setter that
/// leaves the value as it is. editingFinished() follows when the user is done
/// with the field.
///
/// The number is shown with the decimal separator of the widget's locale
/// (the application's default locale unless changed); typing either a point
/// or a comma is read as the separator, so "12,5" and "12.5" are both 12.5.
///
/// Unlike the controls specified first, the field follows its user from the
/// start: it needs no setInteractive().
///
/// \code
/// auto* angle = new CKyUIDoubleSpinBox;
/// angle->setRange(-90, 90);
/// angle->setDecimals(1);
/// angle->setSuffix("°");
/// angle->valueChanged().connect([](double degrees) { /* ... */ });
/// \endcode
///
/// \image html numbers-and-layout.png "Spin boxes with units, among the other controls of the page"
class COMMONUI_EXPORT CKyUIDoubleSpinBox : public CKyUIBaseView
{
public:
    /// A field at 0 with the range 0 to 99, step 1, 2 decimals, no unit text.
    CKyUIDoubleSpinBox();
    ~CKyUIDoubleSpinBox() override;

    /// Sets both bounds; a maximum below the minimum is taken as the
    /// minimum. A value outside the new range moves to it (and emits
    /// valueChanged()).
    void setRange(double minimum, double maximum);
    /// Sets the lower bound, raising the upper one to it if need be.
    void setMinimum(double minimum);
    /// Sets the upper bound, lowering the lower one to it if need be.
    void setMaximum(double maximum);
    /// The lower bound as given.
    double minimum() const;
    /// The upper bound as given (never below the minimum).
    double maximum() const;

    /// Sets the value, brought into the range and rounded to decimals();
    /// valueChanged() follows only if the value changes.
    void setValue(double value);
    /// The value: the one set, or the one the user chose last.
    double value() const;

    /// How much an arrow step or a wheel notch changes the value; 1 unless
    /// set. A negative step is ignored.
    void setSingleStep(double step);
    /// The step.
    double singleStep() const;

    /// The number of digits shown after the separator, 0 to 15. The bounds
    /// are rounded to it, and so is every value set afterwards; the value
    /// already there stays as it is unless it leaves the range.
    void setDecimals(int decimals);
    /// The number of decimals; 2 unless set.
    int decimals() const;

    /// Text shown before the number, such as "Ø ".
    void setPrefix(const QString& prefix);
    /// The text before the number; empty unless set.
    QString prefix() const;
    /// Text shown after the number, usually its unit: " mm", "°". Include
    /// the blank if one should stand between number and unit.
    void setSuffix(const QString& suffix);
    /// The text after the number; empty unless set.
    QString suffix() const;

    /// Emitted with the new value once for every change, by the user or the
    /// program.
    CKyUISignal<void(double)>& valueChanged();
    /// Emitted when the user presses Return in the field or leaves it.
    CKyUISignal<void()>& editingFinished();
};

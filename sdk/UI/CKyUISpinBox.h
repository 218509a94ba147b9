#pragma once

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUISignal.h"

#include <QtCore/QString>

/// A field for a whole number, with arrows, a range, a step and a unit
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
/// Unlike the controls specified first, the field follows its user from the
/// start: it needs no setInteractive().
///
/// \code
/// auto* holes = new CKyUISpinBox;
/// holes->setRange(1, 24);
/// holes->setSuffix(" holes");
/// holes->setValue(6);
/// holes->valueChanged().connect([](int count) { /* ... */ });
/// \endcode
///
/// \image html numbers-and-layout.png "Spin boxes with units, among the other controls of the page"
class COMMONUI_EXPORT CKyUISpinBox : public CKyUIBaseView
{
public:
    /// A field at 0 with the range 0 to 99, step 1, no unit text.
    CKyUISpinBox();
    ~CKyUISpinBox() override;

    /// Sets both bounds; a maximum below the minimum is taken as the
    /// minimum. A value outside the new range moves to it (and emits
    /// valueChanged()).
    void setRange(int minimum, int maximum);
    /// Sets the lower bound, raising the upper one to it if need be.
    void setMinimum(int minimum);
    /// Sets the upper bound, lowering the lower one to it if need be.
    void setMaximum(int maximum);
    /// The lower bound as given.
    int minimum() const;
    /// The upper bound as given (never below the minimum).
    int maximum() const;

    /// Sets the value, brought into the range;
    /// valueChanged() follows only if the value changes.
    void setValue(int value);
    /// The value: the one set, or the one the user chose last.
    int value() const;

    /// How much an arrow step or a wheel notch changes the value; 1 unless
    /// set. A negative step is ignored.
    void setSingleStep(int step);
    /// The step.
    int singleStep() const;

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
    CKyUISignal<void(int)>& valueChanged();
    /// Emitted when the user presses Return in the field or leaves it.
    CKyUISignal<void()>& editingFinished();
};

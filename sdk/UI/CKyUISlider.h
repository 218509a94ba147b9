#pragma once

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUISignal.h"

/// A horizontal integer slider, 25 pixels high, whose widget keeps the range 0
/// to 99 until a bound is set (see \ref behaviours_controls "behaviours").
/// Every change of the widget's value, by the user or by the program, updates
/// value() and emits valueChanged. An interactive slider (see
/// setInteractive()) takes the stored range, 0 to 100 unless set, when it
/// becomes interactive.
///
/// \image html choices.png "Sliders among the other choices"
class COMMONUI_EXPORT CKyUISlider : public CKyUIBaseView
{
public:
    /// A slider at 0, created with its widget.
    CKyUISlider();
    ~CKyUISlider() override;

    /// Stored as given; the widget clamps it and, if its value moves, reports
    /// the clamped value back.
    ///
    /// So setValue(150) on a fresh slider ends with value() 99 and one
    /// valueChanged(99); with the widget already at its maximum, a larger
    /// value emits nothing and value() keeps the unclamped number.
    void setValue(int value);
    /// Stores the bound and gives it to the widget, which may move its value
    /// (and then emits valueChanged).
    void setMinimum(int minimum);
    /// Stores the bound and gives it to the widget, which may move its value
    /// (and then emits valueChanged).
    void setMaximum(int maximum);
    /// The minimum first, then the maximum: the toolkit adjusts the other bound
    /// after each step.
    void setRange(int minimum, int maximum);
    /// The value last set or reported by the widget.
    int value() const;

    /// Emitted with the widget's new value whenever it changes, by the user or
    /// the program.
    CKyUISignal<void(int)>& valueChanged();
};

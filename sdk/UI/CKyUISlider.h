#pragma once

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUISignal.h"

// A horizontal integer slider, 25 pixels high. Every change of the widget's
// value, by the user or by the program, updates value() and emits
// valueChanged. Until a bound is set the widget keeps the toolkit's own range
// of 0 to 99.
class COMMONUI_EXPORT CKyUISlider : public CKyUIBaseView
{
public:
    CKyUISlider();
    ~CKyUISlider() override;

    // Stored as given; the widget clamps it and, if its value moves, reports
    // the clamped value back.
    void setValue(int value);
    void setMinimum(int minimum);
    void setMaximum(int maximum);
    // The minimum first, then the maximum: the toolkit adjusts the other bound
    // after each step.
    void setRange(int minimum, int maximum);
    int value() const;

    CKyUISignal<void(int)>& valueChanged();
};

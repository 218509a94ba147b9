// This translation unit sees Qt with its keywords on, as a client may: the
// signal headers must neither break on Qt's empty `emit` macro nor remove it.
#include <QtCore/QObject>

#ifndef emit
#error "Qt's keywords are expected to be on here"
#endif

#include "CommonUI.h"
#include "UI/CKyUISignal.h"
#include "UI/slimsig/detail/signal_base"

#include <gtest/gtest.h>

#if !defined(emit) || !defined(slots) || !defined(signals)
#error "the signal headers must leave Qt's keywords defined"
#endif

namespace {

TEST(SignalKeywords, HeadersCompileWithQtKeywordsAndLeaveThemDefined)
{
    CKyUIObject owner;
    CKyUISignal<void(int)> signal(&owner);
    int sum = 0;
    signal.connect([&](int v) { sum += v; });

    emit signal.Emit(1); // Qt's keyword still expands to nothing

#pragma push_macro("emit")
#undef emit
    signal.emit(10);
#pragma pop_macro("emit")

    EXPECT_EQ(sum, 11);
}

} // namespace

#ifndef emit
#error "emit must be defined again after the call"
#endif

#pragma once

// Every public header of the library.
#include "UI/CKyUIEvent.h"
#include "UI/CKyUIObject.h"
#include "UI/CKyUISignal.h"

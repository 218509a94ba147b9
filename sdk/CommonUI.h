#pragma once

// Every public header of the library.

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUIEvent.h"
#include "UI/CKyUIHorizontalLayout.h"
#include "UI/CKyUIObject.h"
#include "UI/CKyUISignal.h"
#include "UI/CKyUIStyle.h"
#include "UI/CKyUIVerticalLayout.h"

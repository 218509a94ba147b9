#pragma once

// Every public header of the library.

#include "UI/CKyUIAction.h"
#include "UI/CKyUIBaseView.h"
#include "UI/CKyUIDockWidget.h"
#include "UI/CKyUIEvent.h"
#include "UI/CKyUIHorizontalLayout.h"
#include "UI/CKyUIImageView.h"
#include "UI/CKyUIListBox.h"
#include "UI/CKyUIMenu.h"
#include "UI/CKyUIObject.h"
#include "UI/CKyUIPreviewView.h"
#include "UI/CKyUIScrollableArea.h"
#include "UI/CKyUISignal.h"
#include "UI/CKyUISlider.h"
#include "UI/CKyUIStackedWidget.h"
#include "UI/CKyUIStyle.h"
#include "UI/CKyUITimer.h"
#include "UI/CKyUIVerticalLayout.h"

#pragma once

// Every public header of the library.

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUICheckBox.h"
#include "UI/CKyUIComboBox.h"
#include "UI/CKyUIDialog.h"
#include "UI/CKyUIDialogButtonBox.h"
#include "UI/CKyUIEvent.h"
#include "UI/CKyUIGroupBox.h"
#include "UI/CKyUIHorizontalLayout.h"
#include "UI/CKyUILabel.h"
#include "UI/CKyUIObject.h"
#include "UI/CKyUIPushButton.h"
#include "UI/CKyUIRadioButton.h"
#include "UI/CKyUIRadioGroup.h"
#include "UI/CKyUISignal.h"
#include "UI/CKyUIStyle.h"
#include "UI/CKyUITextEdit.h"
#include "UI/CKyUITextView.h"
#include "UI/CKyUIVerticalLayout.h"

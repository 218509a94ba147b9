#pragma once

// Every public header of the library.

#include "NA/CKyNANetworkAccessManager.h"
#include "NA/CKyNANetworkReply.h"
#include "NA/CKyNANetworkRequest.h"
#include "NA/CKyNAWebSocket.h"
#include "NA/CKyNAWebSocketProtocol.h"
#include "UI/CKyUIBaseView.h"
#include "UI/CKyUIDialog.h"
#include "UI/CKyUIDialogButtonBox.h"
#include "UI/CKyUIEvent.h"
#include "UI/CKyUIHorizontalLayout.h"
#include "UI/CKyUILabel.h"
#include "UI/CKyUIObject.h"
#include "UI/CKyUIPushButton.h"
#include "UI/CKyUISignal.h"
#include "UI/CKyUIStyle.h"
#include "UI/CKyUIVerticalLayout.h"

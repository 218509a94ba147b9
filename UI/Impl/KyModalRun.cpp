#include "UI/Impl/KyModalRun.h"

#include "KyHostKernel.h"

void KyModalRun::NotifyHost(bool running)
{
    const CKyDocument* document = ACTIVE_DOCUMENT();
    if (!document || !document->host)
        return;
    // Asked again: the host hands out its active document afresh each time.
    const CKyDocument* active = ACTIVE_DOCUMENT();
    if (active && active->host)
        active->host->SetModalDialogRunning(running);
}

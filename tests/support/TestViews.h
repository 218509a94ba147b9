#pragma once

#include "UI/CKyUIBaseView.h"
#include "UI/Impl/CKyUIBaseViewImpl.h"

#include <QtCore/QObject>

// A plain view over any toolkit object the test hands it; the view does not
// own the object, as with the library's own views.
class HandleView : public CKyUIBaseView
{
public:
    explicit HandleView(QObject* handle)
    {
        setImpl(new CKyUIBaseViewImpl(this));
        setHandle(handle);
    }
};

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

// The toolkit object behind a view, action or menu, as the class the test
// expects; null when it is not one.
template <class Toolkit> Toolkit* HandleAs(const CKyUIObject& object)
{
    return qobject_cast<Toolkit*>(object.getHandle());
}

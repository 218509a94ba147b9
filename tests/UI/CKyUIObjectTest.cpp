#include "UI/CKyUIObject.h"
#include "UI/Impl/CKyUIObjectImpl.h"

#include <gtest/gtest.h>

#include <QtCore/QStringList>

namespace
{
QStringList deleted;

// Notes when its implementation goes, which is the first thing an object
// deletes of its own after leaving its parent.
struct RecordingImpl : CKyUIObjectImpl
{
    using CKyUIObjectImpl::CKyUIObjectImpl;
    ~RecordingImpl() override { deleted << name; }
    QString name;
};

// An object with an implementation, as the library's own objects have.
struct RecordingObject : CKyUIObject
{
    RecordingObject(const QString& name, CKyUIObject* parent = nullptr)
    {
        auto* impl = new RecordingImpl(this);
        impl->name = name;
        setImpl(impl);
        setParent(parent);
    }
};
} // namespace

// A deleted child leaves its parent and is not deleted again; the parent
// deletes its implementation first, then its children in attachment order.
TEST(CKyUIObjectTest, DeletionOrderAndDeletedChildren)
{
    deleted.clear();
    auto* root = new RecordingObject("root");
    auto* first = new RecordingObject("first", root);
    new RecordingObject("first.child", first);
    auto* doomed = new RecordingObject("doomed", root);
    auto* second = new RecordingObject("second", root);
    auto* third = new RecordingObject("third", root);
    delete doomed;
    EXPECT_EQ(root->children(), QList<CKyUIObject*>({first, second, third}));
    delete root;
    EXPECT_EQ(deleted, QStringList({"doomed", "root", "first", "first.child", "second", "third"}));
}

// Each object sits in one list once; the same parent again moves it to the
// end; cycles are refused.
TEST(CKyUIObjectTest, ReparentingAndCycles)
{
    CKyUIObject a;
    CKyUIObject b;
    auto* child = new CKyUIObject;
    auto* sibling = new CKyUIObject;
    child->setParent(nullptr);
    EXPECT_EQ(child->parent(), nullptr);
    child->setParent(&a);
    sibling->setParent(&a);
    child->setParent(&a);
    EXPECT_EQ(a.children(), QList<CKyUIObject*>({sibling, child}));
    child->setParent(&b);
    EXPECT_EQ(a.children(), QList<CKyUIObject*>({sibling}));
    EXPECT_EQ(b.children(), QList<CKyUIObject*>({child}));
    EXPECT_EQ(child->parent(), &b);

    b.setParent(child);
    b.setParent(&b);
    EXPECT_EQ(b.parent(), nullptr);
    EXPECT_EQ(b.children(), QList<CKyUIObject*>({child}));
}

TEST(CKyUIObjectTest, NameAndDeclaredPropertiesReachTheHandle)
{
    auto* handle = new QObject;
    {
        RecordingObject object("object");
        object.setHandle(handle);
        EXPECT_FALSE(object.property("objectName").isValid());
        EXPECT_TRUE(object.setProperty("objectName", QStringLiteral("declared")));
        EXPECT_EQ(object.property("objectName").toString(), "declared");
        EXPECT_EQ(handle->objectName(), "declared");
        // The toolkit object takes a dynamic property, but the public object
        // neither records it nor reports success.
        EXPECT_FALSE(object.setProperty("dynamicName", 42));
        EXPECT_FALSE(object.property("dynamicName").isValid());
        EXPECT_EQ(handle->property("dynamicName").toInt(), 42);

        object.setObjectName("main_layout");
        EXPECT_EQ(handle->objectName(), "main_layout");
        // The stored name answers, not the toolkit's.
        handle->setObjectName("changed behind our back");
        EXPECT_EQ(object.objectName(), "main_layout");
        EXPECT_EQ(object.getHandle(), handle);
    }
    // The handle is neither owned nor reparented.
    EXPECT_EQ(handle->parent(), nullptr);
    delete handle;
}

TEST(CKyUIObjectTest, ObjectsWithoutImplementationOrHandleStaySilent)
{
    CKyUIObject bare;
    bare.setObjectName("bare");
    EXPECT_EQ(bare.objectName(), "bare");
    EXPECT_FALSE(bare.setProperty("objectName", 1));
    EXPECT_FALSE(bare.setProperty(nullptr, 1));
    EXPECT_FALSE(bare.property(nullptr).isValid());

    RecordingObject handleless("handleless");
    handleless.setObjectName("still stored");
    EXPECT_EQ(handleless.objectName(), "still stored");
    EXPECT_FALSE(handleless.setProperty("objectName", 1));
}

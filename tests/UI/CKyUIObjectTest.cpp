#include "UI/CKyUIObject.h"
#include "UI/Impl/CKyUIObjectImpl.h"

#include <gtest/gtest.h>

#include <QtCore/QObject>
#include <QtCore/QStringList>

namespace
{
// Records when its implementation goes, which is the first thing an object
// deletes of its own after leaving its parent.
class RecordingImpl : public CKyUIObjectImpl
{
public:
    RecordingImpl(CKyUIObject* owner, QStringList* log, QString name)
        : CKyUIObjectImpl(owner)
        , m_log(log)
        , m_name(std::move(name))
    {
    }
    ~RecordingImpl() override { m_log->append(m_name); }

private:
    QStringList* m_log;
    QString m_name;
};

class RecordingObject : public CKyUIObject
{
public:
    RecordingObject(QStringList* log, const QString& name, CKyUIObject* parent = nullptr)
    {
        setImpl(new RecordingImpl(this, log, name));
        setParent(parent);
    }
};
} // namespace

TEST(CKyUIObjectTest, ParentDeletesImplementationFirstThenChildrenInAttachmentOrder)
{
    QStringList log;
    auto* root = new RecordingObject(&log, "root");
    auto* first = new RecordingObject(&log, "first", root);
    new RecordingObject(&log, "first.child", first);
    new RecordingObject(&log, "second", root);
    new RecordingObject(&log, "third", root);

    delete root;

    EXPECT_EQ(log, QStringList({"root", "first", "first.child", "second", "third"}));
}

TEST(CKyUIObjectTest, DeletedChildLeavesItsParentAndIsNotDeletedAgain)
{
    QStringList log;
    auto* root = new RecordingObject(&log, "root");
    auto* child = new RecordingObject(&log, "child", root);
    auto* other = new RecordingObject(&log, "other", root);

    delete child;
    EXPECT_EQ(root->children(), QList<CKyUIObject*>({other}));

    delete root;
    EXPECT_EQ(log, QStringList({"child", "root", "other"}));
}

TEST(CKyUIObjectTest, ReparentingKeepsEachObjectInOneListOnce)
{
    CKyUIObject a;
    CKyUIObject b;
    auto* child = new CKyUIObject;
    auto* sibling = new CKyUIObject;

    child->setParent(nullptr);
    EXPECT_EQ(child->parent(), nullptr);

    child->setParent(&a);
    sibling->setParent(&a);
    // Setting the same parent again moves the object to the end.
    child->setParent(&a);
    EXPECT_EQ(a.children(), QList<CKyUIObject*>({sibling, child}));

    child->setParent(&b);
    EXPECT_EQ(a.children(), QList<CKyUIObject*>({sibling}));
    EXPECT_EQ(b.children(), QList<CKyUIObject*>({child}));
    EXPECT_EQ(child->parent(), &b);
}

TEST(CKyUIObjectTest, CyclesAreRefused)
{
    CKyUIObject root;
    auto* child = new CKyUIObject;
    child->setParent(&root);

    root.setParent(child);
    root.setParent(&root);

    EXPECT_EQ(root.parent(), nullptr);
    EXPECT_EQ(root.children(), QList<CKyUIObject*>({child}));
}

namespace
{
class QtBackedObject : public CKyUIObject
{
public:
    explicit QtBackedObject(QObject* handle)
    {
        setImpl(new CKyUIObjectImpl(this));
        setHandle(handle);
    }
};
} // namespace

TEST(CKyUIObjectTest, OnlyDeclaredToolkitPropertiesAreRecorded)
{
    QObject handle;
    QtBackedObject object(&handle);

    EXPECT_FALSE(object.property("objectName").isValid());

    EXPECT_TRUE(object.setProperty("objectName", QStringLiteral("declared")));
    EXPECT_EQ(object.property("objectName").toString(), "declared");
    EXPECT_EQ(handle.objectName(), "declared");

    // The toolkit object takes a dynamic property, but the public object
    // neither records it nor reports success.
    EXPECT_FALSE(object.setProperty("dynamicName", 42));
    EXPECT_FALSE(object.property("dynamicName").isValid());
    EXPECT_EQ(handle.property("dynamicName").toInt(), 42);
}

TEST(CKyUIObjectTest, NameIsStoredAndReachesTheHandle)
{
    QObject handle;
    QtBackedObject object(&handle);

    object.setObjectName("main_layout");
    EXPECT_EQ(object.objectName(), "main_layout");
    EXPECT_EQ(handle.objectName(), "main_layout");

    // The stored name answers, not the toolkit's.
    handle.setObjectName("changed behind our back");
    EXPECT_EQ(object.objectName(), "main_layout");
}

TEST(CKyUIObjectTest, ObjectsWithoutImplementationOrHandleStaySilent)
{
    CKyUIObject bare;
    bare.setObjectName("bare");
    EXPECT_EQ(bare.objectName(), "bare");
    EXPECT_FALSE(bare.setProperty("objectName", 1));
    EXPECT_FALSE(bare.setProperty(nullptr, 1));
    EXPECT_FALSE(bare.property(nullptr).isValid());

    QtBackedObject handleless(nullptr);
    handleless.setObjectName("still stored");
    EXPECT_EQ(handleless.objectName(), "still stored");
    EXPECT_FALSE(handleless.setProperty("objectName", 1));
}

TEST(CKyUIObjectTest, HandleIsNeitherOwnedNorReparented)
{
    auto* handle = new QObject;
    {
        QtBackedObject object(handle);
        EXPECT_EQ(object.getHandle(), handle);
    }
    EXPECT_EQ(handle->parent(), nullptr);
    delete handle;
}

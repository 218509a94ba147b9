// A tree of public objects, a signal owned by one of them, and what happens
// when it is emitted, blocked and when the tree is deleted.
#include "CommonUI.h"

#include <QtCore/QString>

#include <cstdio>
#include <memory>
#include <string>

namespace {

// A plain public object that knows its name and says when it goes.
class Node : public CKyUIObject
{
public:
    Node(const char* name, CKyUIObject* parent)
        : m_name(name)
    {
        setParent(parent);
    }
    ~Node() override { std::printf("  deleting %s\n", m_name.c_str()); }

    const std::string& name() const { return m_name; }

private:
    std::string m_name;
};

const char* nameOf(const CKyUIObject* object)
{
    const Node* node = dynamic_cast<const Node*>(object);
    return node ? node->name().c_str() : "(none)";
}

void printTree(const CKyUIObject* object, int depth = 0)
{
    std::printf("  %*s%s\n", depth * 2, "", nameOf(object));
    for (const CKyUIObject* child : object->children())
        printTree(child, depth + 1);
}

} // namespace

int main()
{
    Node* dialog = new Node("dialog", nullptr);
    Node* form = new Node("form", dialog);
    Node* edit = new Node("edit", form);
    Node* preview = new Node("preview", form);
    Node* status = new Node("status", dialog);

    std::printf("tree:\n");
    printTree(dialog);

    // The edit's text signal; in the library such a signal lives in the
    // edit's implementation and is reached through an accessor.
    auto textChanged = std::make_unique<CKyUISignal<void(const QString&)>>(edit);
    auto showing = textChanged->connect([&](const QString& text) {
        std::printf("  %s shows \"%s\"\n", preview->name().c_str(), qPrintable(text));
    });
    auto logging = textChanged->connect([&](const QString& text) {
        std::printf("  %s logs a change to \"%s\" (sender %s)\n", status->name().c_str(), qPrintable(text),
                    nameOf(edit->sender()));
    });

    std::printf("emit \"hello\":\n");
    textChanged->Emit(QStringLiteral("hello"));

    std::printf("emit \"quiet\" with the edit's signals blocked:\n");
    edit->blockSignals(true);
    textChanged->Emit(QStringLiteral("quiet"));
    std::printf("  (nothing called; %zu slots still connected)\n", textChanged->slot_count());
    edit->blockSignals(false);

    std::printf("emit \"world\" on behalf of the form:\n");
    {
        CKyUIEmitScope scope(edit, form);
        textChanged->Emit(QStringLiteral("world"));
    }

    std::printf("emit \"bye\" after the status stopped listening:\n");
    logging.disconnect();
    textChanged->Emit(QStringLiteral("bye"));

    std::printf("move the status under the form:\n");
    status->setParent(form);
    printTree(dialog);

    // The signal dies first, as it would with the edit's implementation; the
    // connections handed out outlive it harmlessly.
    std::printf("preview's connection: %s\n", showing.connected() ? "connected" : "not connected");
    textChanged.reset();
    std::printf("after the signal is gone: %s\n", showing.connected() ? "connected" : "not connected");
    showing.disconnect();

    std::printf("delete the dialog (each parent before its children, in attachment order):\n");
    delete dialog;
    return 0;
}

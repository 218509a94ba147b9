#pragma once

// The host learns through its active document that a modal run starts and
// ends. Dialogs, message boxes, file dialogs and the colour chooser all tell
// it the same way.
namespace KyModalRun
{
// Tells the active document's host object whether a modal run is under way;
// without a host object nobody is told.
void NotifyHost(bool running);

// Tells the host that a run starts now and, when it goes, that it ended:
// whatever ends the run, also the deletion of the object that started it.
class Scope
{
public:
    Scope() { NotifyHost(true); }
    ~Scope() { NotifyHost(false); }
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;
};
} // namespace KyModalRun

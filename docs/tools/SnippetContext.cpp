// The helpers the code blocks of the pages call, and a program around them
// that is linked, so that every library symbol a block uses must exist, but
// never run.
#include "SnippetContext.h"

void PluginDialog::SetupUI() {}

void handle(int, const QByteArray&) {}
void report(int, const QString&) {}
void log(const char*) {}
void log(const QString&) {}
QString askUser(const QString&)
{
    return QString();
}
QString askPassword()
{
    return QString();
}

void Owner::consume(const QByteArray&) {}

int main()
{
    return 0;
}

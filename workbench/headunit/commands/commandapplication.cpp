#include "commandapplication.h"

#include "probestart.h"

#include "orbapplication.h"

namespace {

// Qt keeps both for as long as the application lives.
char name[] = "headunit";
char *words[] = {name, nullptr};
int wordCount = 1;

} // namespace

std::unique_ptr<QCoreApplication> CommandApplication::make()
{
    return std::make_unique<QCoreApplication>(wordCount, words);
}

std::unique_ptr<OrbApplication> CommandApplication::makeUnit(QString *error)
{
    if (!ProbeStart::prepare(error)) {
        return nullptr;
    }
    return std::make_unique<OrbApplication>(wordCount, words);
}

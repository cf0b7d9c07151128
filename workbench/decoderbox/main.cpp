#include "boxprogram.h"

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    BoxProgram program;
    int exitCode = 0;
    if (!program.begin(QCoreApplication::arguments(), &exitCode)) {
        return exitCode;
    }
    return QCoreApplication::exec();
}

#ifndef TYPEEVIDENCE_H
#define TYPEEVIDENCE_H

#include "typefit.h"

/// Weighs what the packages of a line tell about the types that could have sent them. Packages of one command stand
/// together, since a hundred positions of a wheel tell little more than ten. A command for which several types account
/// tells as much less; one for which only types account that are out of the question otherwise is more likely one
/// that nobody knows, and hardly counts against the others.
class TypeEvidence
{
public:
    /// Sets evidence, known, knownCommands and ownCommands of those of \a fits that have the frame of \a census and a grade for each package.
    static void weigh(const PackageCensus &census, QVector<TypeFit> *fits);

private:
    struct Command
    {
        double weight = 0;      // by the number of its different packages
        double trust = 1;       // in the types that account for it, 0 to 1
        QVector<double> grades; // of each type, 0 to 1
        double sum = 0;
        double best = 0;
        double second = 0;
    };

    static QVector<Command> commandsOf(const PackageCensus &census, const QVector<TypeFit *> &fits);
    static void score(const QVector<Command> &commands, const QVector<TypeFit *> &fits);
    static void trust(const QVector<TypeFit *> &fits, QVector<Command> *commands);
};

#endif // TYPEEVIDENCE_H

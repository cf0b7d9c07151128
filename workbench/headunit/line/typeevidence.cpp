#include "typeevidence.h"

#include <QMap>

#include <algorithm>
#include <cmath>

void TypeEvidence::weigh(const PackageCensus &census, QVector<TypeFit> *fits)
{
    QVector<TypeFit *> tried;
    for (TypeFit &fit : *fits) {
        if (fit.frame == &census.format() && fit.packages > 0) {
            tried << &fit;
        }
    }
    QVector<Command> commands = commandsOf(census, tried);
    score(commands, tried);
    trust(tried, &commands);
    score(commands, tried);
}

QVector<TypeEvidence::Command> TypeEvidence::commandsOf(const PackageCensus &census,
                                                        const QVector<TypeFit *> &fits)
{
    QMap<quint8, QVector<int>> packages;
    for (int i = 0; i < census.packages().size(); ++i) {
        packages[census.format().package(census.packages().at(i)).command] << i;
    }
    QVector<Command> commands;
    for (const QVector<int> &places : packages) {
        Command command;
        command.weight = std::log2(1 + places.size());
        for (const TypeFit *fit : fits) {
            double sum = 0;
            for (const int place : places) {
                sum += fit->grades.at(place);
            }
            const double grade = sum / double(places.size());
            command.grades << grade;
            command.sum += grade;
            command.second = std::max(command.second, std::min(command.best, grade));
            command.best = std::max(command.best, grade);
        }
        commands << command;
    }
    return commands;
}

// What a type accounts for, of all that is accounted for; and as much less as it does not know at all.
void TypeEvidence::score(const QVector<Command> &commands, const QVector<TypeFit *> &fits)
{
    for (int i = 0; i < fits.size(); ++i) {
        double told = 0;
        double mostTold = 0;
        double known = 0;
        double knownToAny = 0;
        double knownOfAll = 0;
        double all = 0;
        int knownCommands = 0;
        int ownCommands = 0;
        for (const Command &command : commands) {
            const double counts = command.sum > 0 ? command.weight * command.trust : 0;
            const double tells = counts / std::max(1.0, command.sum);
            const bool isKnown = command.grades.at(i) > 0;
            told += tells * command.grades.at(i);
            mostTold += tells * command.best;
            known += isKnown ? counts : 0;
            knownToAny += counts;
            knownOfAll += isKnown ? command.weight : 0;
            knownCommands += isKnown ? 1 : 0;
            const bool isBest = isKnown && command.grades.at(i) >= command.best;
            ownCommands += isBest && command.second <= command.best / 2 ? 1 : 0;
            all += command.weight;
        }
        fits.at(i)->evidence = mostTold > 0 ? told / mostTold * known / knownToAny : 0;
        fits.at(i)->knownCommands = knownCommands;
        fits.at(i)->ownCommands = ownCommands;
        fits.at(i)->known = all > 0 ? knownOfAll / all : 0;
    }
}

void TypeEvidence::trust(const QVector<TypeFit *> &fits, QVector<Command> *commands)
{
    for (Command &command : *commands) {
        command.trust = 0;
        for (int i = 0; i < fits.size(); ++i) {
            command.trust = std::max(command.trust, command.grades.at(i) > 0 ? fits.at(i)->evidence : 0);
        }
    }
}

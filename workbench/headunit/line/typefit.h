#ifndef TYPEFIT_H
#define TYPEFIT_H

#include "packagecensus.h"

#include <QObject>
#include <QProcess>

#include <memory>

/// How well one CAN-bus type fits what a box has said.
struct TypeFit
{
    int type = 0;
    const FrameFormat *frame = nullptr;
    double framed = 0;       ///< part of the bytes that are packages of this type, 0 to 1
    int packages = 0;        ///< different ones
    int explainedCount = 0;  ///< of them, by the plug-in
    QVector<double> grades;  ///< for each package, 0 to 1: how well the type accounts for it
    QVector<quint8> unknown; ///< commands of which the plug-in explains no package, in order
    double evidence = 0;     ///< what speaks for this type, 0 to 1; see TypeEvidence
    double known = 0;        ///< part of what was said that is of commands which the type knows, 0 to 1
    int knownCommands = 0;   ///< commands for which it accounts at all
    int ownCommands = 0;     ///< of them, those for which no other type accounts half as well
};

/// Tries what a box has said on the plug-in of every type. The plug-in builds one decoder per process, so each
/// type has a process of its own: this program, as `headunit identify --probe TYPE`.
class TypeFits : public QObject
{
    Q_OBJECT

public:
    /// \a plugin: path of the shared library.
    explicit TypeFits(const QString &plugin, QObject *parent = nullptr) : QObject(parent), m_plugin(plugin) {}

    /// Tries the packages of \a raise and \a xinHang on the types that have their frame; takes some seconds, in
    /// which the event loop runs. The best fit first. False, with one sentence in \a error, when a process
    /// failed.
    bool find(const PackageCensus &raise, const PackageCensus &xinHang, QVector<TypeFit> *fits,
              QString *error);

    /// Whether the first of \a fits is the box's type: at least 90 % of the evidence speak for it and at most 60 % for
    /// the second, it knows three quarters of what was said, and there was enough to tell by: eight different packages
    /// explained, and three commands that it knows, one of them as no other type does: cars of many makes say keys, doors
    /// and radars alike.
    static bool isSure(const QVector<TypeFit> &fits);

private:
    struct Probe
    {
        TypeFit fit;
        const PackageCensus *census;
        std::unique_ptr<QProcess> process;
    };

    void start(Probe *probe);
    static bool readAnswer(Probe *probe);

    const QString m_plugin;
};

#endif // TYPEFIT_H

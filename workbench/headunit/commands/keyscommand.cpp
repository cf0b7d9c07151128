#include "keyscommand.h"

#include "commandline.h"
#include "keytext.h"
#include "logcommand.h"
#include "loginspection.h"
#include "numbertext.h"
#include "packagevalues.h"

#include <algorithm>
#include <cstdio>

namespace {

bool addCommands(const QStringList &texts, KeyReader *reader)
{
    for (const QString &text : texts) {
        quint32 command = 0;
        if (!NumberText::read(text, &command) || command > 0xFF) {
            return false;
        }
        reader->addCommand(quint8(command));
    }
    return true;
}

int tell(KeyTester *tester, qint64 end)
{
    tester->look(end);
    for (const KeyStroke &stroke : tester->strokes()) {
        std::puts(KeyText::plain(stroke, end).toUtf8().constData());
    }
    if (tester->strokes().empty()) {
        std::puts("No key was pressed.");
        return CommandLine::FoundSomething;
    }
    std::printf("\n%s", qPrintable(KeyText::tables(tester->strokes())));
    const bool isFine =
        std::all_of(tester->strokes().begin(), tester->strokes().end(), [](const KeyStroke &stroke) {
            return !stroke.isStuck && stroke.pressed >= 0 && !stroke.becomes.isEmpty();
        });
    return isFine ? CommandLine::Fine : CommandLine::FoundSomething;
}

} // namespace

int keysCommand(const QStringList &words)
{
    CommandLine line(
        "keys",
        "The keys that were pressed in a log: when, for how long, and what the unit makes of them; then "
        "tables of them, as an adapter's file has them, with NoKey where the unit makes nothing of a key. "
        "For a log of somebody who presses each key once. Ends with 1 when a key became nothing, was down "
        "for more than 10 s or came up without a press, or when there was no key.");
    LogCommand log(&line);
    QStringList commands;
    line.addList("--key-command", &commands,
                 "this command reports keys as well: the code in data byte 0, its state in byte 1; may be "
                 "repeated")
        .valueName("0xNN");
    int exitCode = 0;
    if (!line.read(words, &exitCode)) {
        return exitCode;
    }
    KeyReader reader;
    if (!addCommands(commands, &reader)) {
        return line.refuse("--key-command takes a command like 0x20");
    }
    std::unique_ptr<KeyTester> tester;
    const auto prepare = [&](LogInspection *inspection) {
        if (const PackageValues *values = inspection->inspector()->inspection()->values()) {
            reader = KeyReader(values->speaker());
            addCommands(commands, &reader);
        }
        tester.reset(new KeyTester(reader));
        QObject::connect(inspection, &LogInspection::rowDone, tester.get(), &KeyTester::take);
    };
    const auto answer = [&](LogInspection *inspection) {
        return tell(tester.get(), inspection->inspector()->inspection()->now());
    };
    return log.run(prepare, answer);
}

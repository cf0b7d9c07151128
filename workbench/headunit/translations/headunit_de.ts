<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>AppPage</name>
    <message>
        <source>This picture comes from the car.</source>
        <translation>Dieses Bild kommt vom Fahrzeug.</translation>
    </message>
</context>
<context>
    <name>BoxKeysPage</name>
    <message>
        <source>Keys on the steering wheel</source>
        <translation>Tasten am Lenkrad</translation>
    </message>
    <message>
        <source>Keys on the car&apos;s panel</source>
        <translation>Tasten am Bedienfeld des Autos</translation>
    </message>
    <message>
        <source>This car has no keys</source>
        <translation>Dieses Auto hat keine Tasten</translation>
    </message>
    <message>
        <source>Knobs</source>
        <translation>Drehknöpfe</translation>
    </message>
</context>
<context>
    <name>BoxPage</name>
    <message>
        <source>Scenario</source>
        <translation>Szenario</translation>
    </message>
    <message>
        <source>Scenarios (*.scn)</source>
        <translation>Szenarien (*.scn)</translation>
    </message>
    <message>
        <source>Waits for the unit&apos;s ready</source>
        <translation>Wartet auf die Bereitmeldung des Geräts</translation>
    </message>
    <message>
        <source>Talks with the unit</source>
        <translation>Spricht mit dem Gerät</translation>
    </message>
    <message>
        <source>Silent: the unit did not acknowledge</source>
        <translation>Stumm: das Gerät hat nicht bestätigt</translation>
    </message>
    <message>
        <source>The unit has not opened the port</source>
        <translation>Das Gerät hat den Anschluss nicht geöffnet</translation>
    </message>
    <message>
        <source>Nothing yet</source>
        <translation>Noch nichts</translation>
    </message>
    <message>
        <source>Box at %1</source>
        <translation>Box an %1</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Open ...</source>
        <translation>Öffnen ...</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>None chosen</source>
        <translation>Keines gewählt</translation>
    </message>
    <message>
        <source>%1 plays</source>
        <translation>%1 läuft</translation>
    </message>
    <message>
        <source>Line faults</source>
        <translation>Leitungsstörungen</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>Rauschen</translation>
    </message>
    <message>
        <source>Cut a package</source>
        <translation>Paket kürzen</translation>
    </message>
    <message>
        <source>Corrupt a package</source>
        <translation>Paket stören</translation>
    </message>
    <message>
        <source>Silence, 3 s</source>
        <translation>Stille, 3 s</translation>
    </message>
    <message>
        <source>What the unit told the box</source>
        <translation>Was das Gerät der Box sagte</translation>
    </message>
    <message>
        <source>Line log</source>
        <translation>Leitungsprotokoll</translation>
    </message>
    <message>
        <source>Flip a bit</source>
        <translation>Bit kippen</translation>
    </message>
    <message>
        <source>Lose a byte</source>
        <translation>Byte verlieren</translation>
    </message>
    <message>
        <source>Double a byte</source>
        <translation>Byte verdoppeln</translation>
    </message>
    <message>
        <source>Wrong length</source>
        <translation>Falsche Länge</translation>
    </message>
    <message>
        <source>Stall, 300 ms</source>
        <translation>Stocken, 300 ms</translation>
    </message>
    <message>
        <source>Garbage</source>
        <translation>Müll</translation>
    </message>
    <message>
        <source>Late answer</source>
        <translation>Späte Antwort</translation>
    </message>
    <message>
        <source>Cut the update</source>
        <translation>Update kappen</translation>
    </message>
    <message>
        <source>Pull the line</source>
        <translation>Leitung ziehen</translation>
    </message>
    <message>
        <source>Plug it in</source>
        <translation>Einstecken</translation>
    </message>
    <message>
        <source>Bad line</source>
        <translation>Schlechte Leitung</translation>
    </message>
    <message>
        <source>Good line</source>
        <translation>Gute Leitung</translation>
    </message>
</context>
<context>
    <name>CarView</name>
    <message>
        <source>Front left door open</source>
        <translation>Tür vorn links offen</translation>
    </message>
    <message>
        <source>Front right door open</source>
        <translation>Tür vorn rechts offen</translation>
    </message>
    <message>
        <source>Rear left door open</source>
        <translation>Tür hinten links offen</translation>
    </message>
    <message>
        <source>Rear right door open</source>
        <translation>Tür hinten rechts offen</translation>
    </message>
    <message>
        <source>Doors open</source>
        <translation>Türen offen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>All doors closed</source>
        <translation>Alle Türen geschlossen</translation>
    </message>
    <message>
        <source>Steering %1°</source>
        <translation>Lenkung %1°</translation>
    </message>
</context>
<context>
    <name>DeskWindow</name>
    <message>
        <source>Head unit on the desk</source>
        <translation>Bordgerät auf dem Tisch</translation>
    </message>
</context>
<context>
    <name>KeyCard</name>
    <message>
        <source>Last key</source>
        <translation>Letzte Taste</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Noch keine</translation>
    </message>
    <message>
        <source>Key %1</source>
        <translation>Taste %1</translation>
    </message>
    <message>
        <source>held, %1×</source>
        <translation>gehalten, %1×</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Car</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Box</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Gerät</translation>
    </message>
</context>
<context>
    <name>UnitControls</name>
    <message>
        <source>Radio</source>
        <translation>Radio</translation>
    </message>
    <message>
        <source>USB music</source>
        <translation>USB-Musik</translation>
    </message>
    <message>
        <source>Bluetooth</source>
        <translation>Bluetooth</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>Navigation</translation>
    </message>
    <message>
        <source>In a call</source>
        <translation>Im Gespräch</translation>
    </message>
    <message>
        <source>Listening …</source>
        <translation>Ich höre …</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>Volume %1</source>
        <translation>Lautstärke %1</translation>
    </message>
    <message>
        <source>Track %1</source>
        <translation>Titel %1</translation>
    </message>
    <message>
        <source>Plays</source>
        <translation>Spielt</translation>
    </message>
    <message>
        <source>Pauses</source>
        <translation>Hält an</translation>
    </message>
    <message>
        <source>No call</source>
        <translation>Kein Gespräch</translation>
    </message>
    <message>
        <source>For the window in front</source>
        <translation>Für das vordere Fenster</translation>
    </message>
    <message>
        <source>No effect on the desk</source>
        <translation>Hier ohne Wirkung</translation>
    </message>
</context>
<context>
    <name>UnitKey</name>
    <message>
        <source>Vol −</source>
        <translation>Leiser</translation>
    </message>
    <message>
        <source>Vol +</source>
        <translation>Lauter</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Voriger</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nächster</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Rückspulen</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorspulen</translation>
    </message>
    <message>
        <source>Previous track</source>
        <translation>Voriger Titel</translation>
    </message>
    <message>
        <source>Next track</source>
        <translation>Nächster Titel</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>Play/pause</source>
        <translation>Wiedergabe/Pause</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Anruf</translation>
    </message>
    <message>
        <source>Hang up</source>
        <translation>Auflegen</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Runter</translation>
    </message>
</context>
<context>
    <name>UnitPage</name>
    <message>
        <source>Folder behind the disk</source>
        <translation>Ordner hinter dem Datenträger</translation>
    </message>
    <message>
        <source>USB disk</source>
        <translation>USB-Datenträger</translation>
    </message>
    <message>
        <source>Choose the folder that is on the disk.</source>
        <translation>Wählen Sie den Ordner auf dem Datenträger.</translation>
    </message>
    <message>
        <source>Plugged in: %1</source>
        <translation>Eingesteckt: %1</translation>
    </message>
    <message>
        <source>Pulled out: %1</source>
        <translation>Abgezogen: %1</translation>
    </message>
    <message>
        <source>Folder ...</source>
        <translation>Ordner ...</translation>
    </message>
    <message>
        <source>Pull out</source>
        <translation>Abziehen</translation>
    </message>
    <message>
        <source>Put in</source>
        <translation>Einstecken</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
</context>
<context>
    <name>UnitShell</name>
    <message>
        <source>Home</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Application %1</source>
        <translation>Anwendung %1</translation>
    </message>
</context>
</TS>

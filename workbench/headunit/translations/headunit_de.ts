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
    <name>BitGrid</name>
    <message>
        <source>The bits are being tried out ...</source>
        <translation>Die Bits werden ausprobiert ...</translation>
    </message>
    <message>
        <source>The bits could not be tried out.</source>
        <translation>Die Bits ließen sich nicht ausprobieren.</translation>
    </message>
    <message>
        <source>Bits of a package</source>
        <translation>Bits eines Pakets</translation>
    </message>
    <message>
        <source>Package 0x%1 of %2</source>
        <translation>Paket 0x%1 von %2</translation>
    </message>
</context>
<context>
    <name>BitGridPicture</name>
    <message>
        <source>no effect</source>
        <translation>ohne Wirkung</translation>
    </message>
    <message>
        <source>only together with %1</source>
        <translation>nur zusammen mit %1</translation>
    </message>
    <message>
        <source>depends on what the car said before</source>
        <translation>hängt davon ab, was das Auto vorher sagte</translation>
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
    <message>
        <source>Stopped</source>
        <translation>Gestoppt</translation>
    </message>
    <message>
        <source>Silent by order</source>
        <translation>Auf Befehl still</translation>
    </message>
</context>
<context>
    <name>CarPage</name>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Mid left</source>
        <translation>Mitte links</translation>
    </message>
    <message>
        <source>Mid right</source>
        <translation>Mitte rechts</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
</context>
<context>
    <name>CarPicker</name>
    <message>
        <source>Which car?</source>
        <translation>Welches Auto?</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Virtual box</source>
        <translation>Virtuelle Box</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The decoder that is fitted</source>
        <translation>Der eingebaute Decoder</translation>
    </message>
    <message>
        <source>Its line: a virtual box, or a serial device of this computer</source>
        <translation>Seine Leitung: eine virtuelle Box oder eine serielle Schnittstelle dieses Rechners</translation>
    </message>
    <message>
        <source>%1 (no virtual box)</source>
        <translation>%1 (keine virtuelle Box)</translation>
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
    <message>
        <source>Doors not reported</source>
        <translation>Türen nicht gemeldet</translation>
    </message>
    <message>
        <source>The car has reported nothing yet</source>
        <translation>Das Auto hat noch nichts gemeldet</translation>
    </message>
</context>
<context>
    <name>DeskWindow</name>
    <message>
        <source>Head unit on the desk</source>
        <translation>Bordgerät auf dem Tisch</translation>
    </message>
    <message>
        <source>Not sure: %1</source>
        <translation>Ungewiss: %1</translation>
    </message>
    <message>
        <source>Hello said: the box was sent the ready command</source>
        <translation>Begrüßt: die Box hat das Bereit-Kommando bekommen</translation>
    </message>
    <message>
        <source>There is no open line to say hello on</source>
        <translation>Es ist keine Leitung offen</translation>
    </message>
    <message>
        <source>Saved the last 60 s: %1</source>
        <translation>Letzte 60 s gespeichert: %1</translation>
    </message>
    <message>
        <source>Show the panel (F9)</source>
        <translation>Bedienfeld zeigen (F9)</translation>
    </message>
    <message>
        <source>Fold the panel away (F9)</source>
        <translation>Bedienfeld einklappen (F9)</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Keep the filter</source>
        <translation>Filter behalten</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filter: %1</translation>
    </message>
    <message>
        <source>All words must fit: cmd=0x28, cmd=climate, dir=in, bad, changed, explained, call=set*, screen=Air*, hex=2e28, d2=0x1f, d0.6=1, ack&gt;20, ack=none, t&lt;9.5; ! turns a word round</source>
        <translation>Alle Wörter müssen passen: cmd=0x28, cmd=climate, dir=in, bad, changed, explained, call=set*, screen=Air*, hex=2e28, d2=0x1f, d0.6=1, ack&gt;20, ack=none, t&lt;9.5; ! kehrt ein Wort um</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Keeps this filter under a name</source>
        <translation>Behält diesen Filter unter einem Namen</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Vergessen</translation>
    </message>
    <message>
        <source>Forgets the kept filter</source>
        <translation>Vergisst den behaltenen Filter</translation>
    </message>
    <message>
        <source>Unexplained</source>
        <translation>Ungeklärtes</translation>
    </message>
    <message>
        <source>Hides what is explained</source>
        <translation>Blendet aus, was erklärt ist</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>Hides packages that are as the one of their command before</source>
        <translation>Blendet Pakete aus, die wie das vorige ihres Befehls sind</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>InspectionFilter</name>
    <message>
        <source>a command is at most 0xff, not %1</source>
        <translation>ein Befehl ist höchstens 0xff, nicht %1</translation>
    </message>
    <message>
        <source>dir= takes in or out, not &apos;%1&apos;</source>
        <translation>dir= nimmt in oder out, nicht &apos;%1&apos;</translation>
    </message>
    <message>
        <source>hex= takes pairs of hexadecimal digits, not &apos;%1&apos;</source>
        <translation>hex= nimmt Paare hexadezimaler Ziffern, nicht &apos;%1&apos;</translation>
    </message>
    <message>
        <source>&apos;%1&apos; takes a byte</source>
        <translation>&apos;%1&apos; nimmt ein Byte</translation>
    </message>
    <message>
        <source>&apos;%1&apos; takes a bit 0 to 7 and 0 or 1</source>
        <translation>&apos;%1&apos; nimmt ein Bit 0 bis 7 und 0 oder 1</translation>
    </message>
    <message>
        <source>ack takes &lt; or &gt; and milliseconds, or =none</source>
        <translation>ack nimmt &lt; oder &gt; und Millisekunden, oder =none</translation>
    </message>
    <message>
        <source>t takes &lt; or &gt; and seconds</source>
        <translation>t nimmt &lt; oder &gt; und Sekunden</translation>
    </message>
    <message>
        <source>&apos;%1&apos; lacks its value</source>
        <translation>&apos;%1&apos; fehlt der Wert</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no word of a filter; there are %2</source>
        <translation>&apos;%1&apos; ist kein Wort eines Filters; es gibt %2</translation>
    </message>
</context>
<context>
    <name>InspectionModel</name>
    <message>
        <source>Time, s</source>
        <translation>Zeit, s</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>Paket</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>Antwort</translation>
    </message>
    <message>
        <source>Caused</source>
        <translation>Bewirkt</translation>
    </message>
    <message>
        <source>BAD %1</source>
        <translation>FALSCH %1</translation>
    </message>
    <message>
        <source>NO PACKAGE</source>
        <translation>KEIN PAKET</translation>
    </message>
    <message>
        <source>LINE</source>
        <translation>LEITUNG</translation>
    </message>
    <message>
        <source>CALL</source>
        <translation>AUFRUF</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>TASTE</translation>
    </message>
</context>
<context>
    <name>InspectorView</name>
    <message>
        <source>Choose a package to see all of it.</source>
        <translation>Ein Paket wählen, um alles davon zu sehen.</translation>
    </message>
    <message>
        <source>answered in %1</source>
        <translation>beantwortet in %1</translation>
    </message>
    <message>
        <source>Further calls: %1</source>
        <translation>Weitere Aufrufe: %1</translation>
    </message>
    <message>
        <source>The unit made nothing of it</source>
        <translation>Das Gerät hat nichts daraus gemacht</translation>
    </message>
    <message>
        <source>The unit did not take it</source>
        <translation>Das Gerät hat es nicht genommen</translation>
    </message>
    <message>
        <source>Calls: %1</source>
        <translation>Aufrufe: %1</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message>
        <source>Search: 2e 21, setTemperature, climate</source>
        <translation>Suche: 2e 21, setTemperature, climate</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Calls and rates as well (F8)</source>
        <translation>Auch Aufrufe und Häufigkeiten (F8)</translation>
    </message>
    <message>
        <source>Calls (a click goes to the package)</source>
        <translation>Aufrufe (Klick führt zum Paket)</translation>
    </message>
    <message>
        <source>Commands (a double click filters)</source>
        <translation>Befehle (Doppelklick filtert)</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>per s</source>
        <translation>pro s</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>Bad</source>
        <translation>Falsch</translation>
    </message>
    <message>
        <source>Bits</source>
        <translation>Bits</translation>
    </message>
    <message>
        <source>What each bit of the chosen package does</source>
        <translation>Was jedes Bit des gewählten Pakets bewirkt</translation>
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
    <name>KeyTesterCard</name>
    <message>
        <source>%1 %2 has been down for %3 s and does not come up</source>
        <translation>%1 %2 ist seit %3 s gedrückt und kommt nicht hoch</translation>
    </message>
    <message>
        <source>no press</source>
        <translation>ungedrückt</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>Steering wheel</source>
        <translation>Lenkrad</translation>
    </message>
    <message>
        <source>Car&apos;s panel</source>
        <translation>Bedienfeld des Autos</translation>
    </message>
    <message>
        <source>Knob</source>
        <translation>Drehknopf</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Pressed at %1 s, held %2 times</source>
        <translation>Gedrückt bei %1 s, %2-mal gehalten</translation>
    </message>
    <message>
        <source>Still down</source>
        <translation>Noch gedrückt</translation>
    </message>
    <message>
        <source>Came up at %1 s</source>
        <translation>Losgelassen bei %1 s</translation>
    </message>
    <message>
        <source>Becomes: %1</source>
        <translation>Wird zu: %1</translation>
    </message>
    <message>
        <source>After redefinition: %1</source>
        <translation>Nach der Umbelegung: %1</translation>
    </message>
    <message>
        <source>the same</source>
        <translation>dasselbe</translation>
    </message>
    <message>
        <source>Key tester</source>
        <translation>Tastentester</translation>
    </message>
    <message>
        <source>Press each key of the car, or of the unit, once: here stands what becomes of it.</source>
        <translation>Jede Taste des Autos oder des Geräts einmal drücken: hier steht, was daraus wird.</translation>
    </message>
    <message>
        <source>Copy as a key table</source>
        <translation>Als Tastentabelle kopieren</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Taste</translation>
    </message>
    <message>
        <source>Pressed, s</source>
        <translation>Um, s</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Becomes</source>
        <translation>Wird zu</translation>
    </message>
</context>
<context>
    <name>LinePage</name>
    <message>
        <source>Line</source>
        <translation>Leitung</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Leitung %1</translation>
    </message>
    <message>
        <source>Packages: %1, %2 a second</source>
        <translation>Pakete: %1, %2 je Sekunde</translation>
    </message>
    <message>
        <source>Last package: %1</source>
        <translation>Letztes Paket: %1</translation>
    </message>
    <message>
        <source>Acknowledged in: %1</source>
        <translation>Quittiert in: %1</translation>
    </message>
    <message>
        <source>Bad checksums: %1</source>
        <translation>Falsche Prüfsummen: %1</translation>
    </message>
    <message>
        <source>Skipped bytes: %1</source>
        <translation>Übergangene Bytes: %1</translation>
    </message>
    <message>
        <source>Repetitions: %1</source>
        <translation>Wiederholungen: %1</translation>
    </message>
    <message>
        <source>Say hello</source>
        <translation>Begrüßen</translation>
    </message>
    <message>
        <source>Sends the box the ready command again</source>
        <translation>Schickt der Box noch einmal das Bereit-Kommando</translation>
    </message>
    <message>
        <source>Save 60 s</source>
        <translation>60 s speichern</translation>
    </message>
    <message>
        <source>Line log</source>
        <translation>Leitungsprotokoll</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Inspektor</translation>
    </message>
</context>
<context>
    <name>LineStatus</name>
    <message>
        <source>the serial library in use tells nothing</source>
        <translation>die serielle Bibliothek verrät nichts</translation>
    </message>
    <message>
        <source>the unit has opened no line</source>
        <translation>das Gerät hat keine Leitung geöffnet</translation>
    </message>
    <message>
        <source>no such device</source>
        <translation>kein solches Gerät</translation>
    </message>
    <message>
        <source>no permission</source>
        <translation>keine Berechtigung</translation>
    </message>
    <message>
        <source>no permission: join the group %1</source>
        <translation>keine Berechtigung: der Gruppe %1 beitreten</translation>
    </message>
    <message>
        <source>in use by another process</source>
        <translation>von einem anderen Prozess belegt</translation>
    </message>
    <message>
        <source>in use by %1</source>
        <translation>belegt von %1</translation>
    </message>
    <message>
        <source>no serial device</source>
        <translation>keine serielle Schnittstelle</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>lässt sich nicht öffnen: %1</translation>
    </message>
    <message>
        <source>line lost: was the adapter pulled out?</source>
        <translation>Leitung verloren: Adapter abgezogen?</translation>
    </message>
    <message>
        <source>bytes but no packages: other baud rate?</source>
        <translation>Bytes, aber keine Pakete: andere Baudrate?</translation>
    </message>
    <message>
        <source>waiting for the box&apos;s first word</source>
        <translation>wartet auf das erste Wort der Box</translation>
    </message>
    <message>
        <source>talking</source>
        <translation>im Gespräch</translation>
    </message>
    <message>
        <source>silent for %1 s</source>
        <translation>still seit %1 s</translation>
    </message>
    <message>
        <source>unit too slow: box repeats</source>
        <translation>Gerät zu langsam: Box wiederholt</translation>
    </message>
    <message>
        <source>box stopped</source>
        <translation>Box gestoppt</translation>
    </message>
    <message>
        <source>box silent by order</source>
        <translation>Box auf Befehl still</translation>
    </message>
</context>
<context>
    <name>LineStrip</name>
    <message>
        <source>Save the last 60 s</source>
        <translation>Letzte 60 s speichern</translation>
    </message>
</context>
<context>
    <name>LineWords</name>
    <message>
        <source>%1 packages/s</source>
        <translation>%1 Pakete/s</translation>
    </message>
    <message>
        <source>%1 bad</source>
        <translation>%1 falsch</translation>
    </message>
    <message>
        <source>%1 bytes skipped</source>
        <translation>%1 Bytes übergangen</translation>
    </message>
    <message>
        <source>%1 repeated</source>
        <translation>%1 wiederholt</translation>
    </message>
    <message>
        <source>answered in %1</source>
        <translation>quittiert in %1</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nie</translation>
    </message>
    <message>
        <source>%1 s ago</source>
        <translation>vor %1 s</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>noch keine</translation>
    </message>
</context>
<context>
    <name>ObservationWords</name>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Klang</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Uhr</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Anwendung</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>Radio</source>
        <translation>Radio</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musik</translation>
    </message>
    <message>
        <source>Bluetooth</source>
        <translation>Bluetooth</translation>
    </message>
    <message>
        <source>another one</source>
        <translation>eine andere</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
</context>
<context>
    <name>ReplayCard</name>
    <message>
        <source>%1 s of the log, %2 packages</source>
        <translation>%1 s der Aufzeichnung, %2 Pakete</translation>
    </message>
    <message>
        <source>Replay: at its end</source>
        <translation>Wiedergabe: zu Ende</translation>
    </message>
    <message>
        <source>Replay: paused</source>
        <translation>Wiedergabe: angehalten</translation>
    </message>
    <message>
        <source>Replay</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Schritt</translation>
    </message>
    <message>
        <source>Plays the next bytes and pauses (full stop)</source>
        <translation>Spielt die nächsten Bytes und hält an (Punkt)</translation>
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
    <message>
        <source>Line</source>
        <translation>Leitung</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
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

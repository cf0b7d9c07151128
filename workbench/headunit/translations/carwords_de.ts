<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>CarWords</name>
    <message>
        <source>360 view</source>
        <translation>360-Grad-Sicht</translation>
    </message>
    <message>
        <source>A/C</source>
        <translation>A/C</translation>
    </message>
    <message>
        <source>Activated</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Advance warning</source>
        <translation>Vorwarnung</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Anwendung</translation>
    </message>
    <message>
        <source>Application none</source>
        <translation>Keine Anwendung</translation>
    </message>
    <message>
        <source>Assist</source>
        <translation>Assistenz</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Auto lock</source>
        <translation>Selbstverriegelung</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Average consumption</source>
        <translation>Mittelverbrauch</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>Mitteltempo</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Backwards</source>
        <translation>Rückwärts</translation>
    </message>
    <message>
        <source>Beyond</source>
        <translation>Über das Ende</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Box</translation>
    </message>
    <message>
        <source>Brake</source>
        <translation>Bremse</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Anruf</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Car type</source>
        <translation>Fahrzeugtyp</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Circulation</source>
        <translation>Luftzufuhr</translation>
    </message>
    <message>
        <source>Climate</source>
        <translation>Klima</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Nah</translation>
    </message>
    <message>
        <source>Codes</source>
        <translation>Codes</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Comfort</source>
        <translation>Komfort</translation>
    </message>
    <message>
        <source>Coming home</source>
        <translation>Heimkommen</translation>
    </message>
    <message>
        <source>Confirmation</source>
        <translation>Bestätigung</translation>
    </message>
    <message>
        <source>Consumers</source>
        <translation>Verbraucher</translation>
    </message>
    <message>
        <source>Consumption</source>
        <translation>Verbrauch</translation>
    </message>
    <message>
        <source>Convenience</source>
        <translation>Komfort</translation>
    </message>
    <message>
        <source>Cursor down</source>
        <translation>Zeiger ab</translation>
    </message>
    <message>
        <source>Cursor left</source>
        <translation>Zeiger links</translation>
    </message>
    <message>
        <source>Cursor right</source>
        <translation>Zeiger rechts</translation>
    </message>
    <message>
        <source>Cursor up</source>
        <translation>Zeiger auf</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>Daytime</source>
        <translation>Tagfahrlicht</translation>
    </message>
    <message>
        <source>Defrost</source>
        <translation>Abtauen</translation>
    </message>
    <message>
        <source>Digit</source>
        <translation>Ziffer</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Strecke</translation>
    </message>
    <message>
        <source>Distance warning</source>
        <translation>Abstandswarnung</translation>
    </message>
    <message>
        <source>Doors</source>
        <translation>Türen</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Abwärts</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Fahren</translation>
    </message>
    <message>
        <source>Drive program</source>
        <translation>Fahrprogramm</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>Fahrer</translation>
    </message>
    <message>
        <source>Driver alert</source>
        <translation>Müdigkeitswarnung</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dynamisch</translation>
    </message>
    <message>
        <source>ESC</source>
        <translation>ESC</translation>
    </message>
    <message>
        <source>Early</source>
        <translation>Früh</translation>
    </message>
    <message>
        <source>Eco</source>
        <translation>Eco</translation>
    </message>
    <message>
        <source>Eco tips</source>
        <translation>Spartipps</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Motor</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Factory</source>
        <translation>Werksanzeige</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>Gebläse</translation>
    </message>
    <message>
        <source>Fan auto</source>
        <translation>Gebläse auto</translation>
    </message>
    <message>
        <source>Far</source>
        <translation>Weit</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>Störung</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Anklappen</translation>
    </message>
    <message>
        <source>Footwell</source>
        <translation>Fußraum</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorspulen</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Vorn</translation>
    </message>
    <message>
        <source>Front left</source>
        <translation>Vorn links</translation>
    </message>
    <message>
        <source>Front right</source>
        <translation>Vorn rechts</translation>
    </message>
    <message>
        <source>Front tone</source>
        <translation>Ton vorn</translation>
    </message>
    <message>
        <source>Front volume</source>
        <translation>Lautstärke vorn</translation>
    </message>
    <message>
        <source>Front window</source>
        <translation>Fenster vorn</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Voll</translation>
    </message>
    <message>
        <source>Function call</source>
        <translation>Funktion Anruf</translation>
    </message>
    <message>
        <source>Function forward</source>
        <translation>Funktion Vorspulen</translation>
    </message>
    <message>
        <source>Function hangup</source>
        <translation>Funktion Auflegen</translation>
    </message>
    <message>
        <source>Function next</source>
        <translation>Funktion nächster</translation>
    </message>
    <message>
        <source>Function previous</source>
        <translation>Funktion voriger</translation>
    </message>
    <message>
        <source>Function rewind</source>
        <translation>Funktion Rückspulen</translation>
    </message>
    <message>
        <source>Gear</source>
        <translation>Gang</translation>
    </message>
    <message>
        <source>Hang up</source>
        <translation>Auflegen</translation>
    </message>
    <message>
        <source>Head</source>
        <translation>Dach</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Hill descent</source>
        <translation>Bergabfahrt</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Illumination</source>
        <translation>Beleuchtung</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Umluft</translation>
    </message>
    <message>
        <source>Indicator</source>
        <translation>Blinker</translation>
    </message>
    <message>
        <source>Individual</source>
        <translation>Individuell</translation>
    </message>
    <message>
        <source>Inspection</source>
        <translation>Inspektion</translation>
    </message>
    <message>
        <source>Instruments</source>
        <translation>Instrumente</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Taste</translation>
    </message>
    <message>
        <source>Known</source>
        <translation>Bekannt</translation>
    </message>
    <message>
        <source>Lane</source>
        <translation>Spur</translation>
    </message>
    <message>
        <source>Lane change</source>
        <translation>Spurwechsel</translation>
    </message>
    <message>
        <source>Lane keeping</source>
        <translation>Spurhalten</translation>
    </message>
    <message>
        <source>Last distance</source>
        <translation>Letzter Abstand</translation>
    </message>
    <message>
        <source>Late</source>
        <translation>Spät</translation>
    </message>
    <message>
        <source>Leaving home</source>
        <translation>Wegfahren</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Licht</translation>
    </message>
    <message>
        <source>Lighting</source>
        <translation>Beleuchtung</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Beladung</translation>
    </message>
    <message>
        <source>Long term</source>
        <translation>Langzeit</translation>
    </message>
    <message>
        <source>Loss</source>
        <translation>Verlust</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
    <message>
        <source>Lower reversing</source>
        <translation>Absenken rückwärts</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>Mirrors</source>
        <translation>Spiegel</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Motorway</source>
        <translation>Autobahn</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nächster</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Offroad</source>
        <translation>Gelände</translation>
    </message>
    <message>
        <source>Offroad climate</source>
        <translation>Gelände: Klima</translation>
    </message>
    <message>
        <source>Offroad individual</source>
        <translation>Gelände individuell</translation>
    </message>
    <message>
        <source>Oil</source>
        <translation>Öl</translation>
    </message>
    <message>
        <source>Oil temperature</source>
        <translation>Öltemperatur</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Außenluft</translation>
    </message>
    <message>
        <source>Parking</source>
        <translation>Parken</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Ein/Aus</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Voriger</translation>
    </message>
    <message>
        <source>Radar</source>
        <translation>Radar</translation>
    </message>
    <message>
        <source>Radar maxima</source>
        <translation>Radar-Höchstwerte</translation>
    </message>
    <message>
        <source>Radar sound</source>
        <translation>Radarton</translation>
    </message>
    <message>
        <source>Rain</source>
        <translation>Regen</translation>
    </message>
    <message>
        <source>Rain wiping</source>
        <translation>Regenwischen</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Reichweite</translation>
    </message>
    <message>
        <source>Rear</source>
        <translation>Hinten</translation>
    </message>
    <message>
        <source>Rear left</source>
        <translation>Hinten links</translation>
    </message>
    <message>
        <source>Rear right</source>
        <translation>Hinten rechts</translation>
    </message>
    <message>
        <source>Rear tone</source>
        <translation>Ton hinten</translation>
    </message>
    <message>
        <source>Rear volume</source>
        <translation>Lautstärke hinten</translation>
    </message>
    <message>
        <source>Rear window</source>
        <translation>Fenster hinten</translation>
    </message>
    <message>
        <source>Rear wiping</source>
        <translation>Heckwischen</translation>
    </message>
    <message>
        <source>Reasons</source>
        <translation>Gründe</translation>
    </message>
    <message>
        <source>Remote key</source>
        <translation>Funkschlüssel</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Rückwärtsgang</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Rückspulen</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>Seat</source>
        <translation>Sitz</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Wartung</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Side</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Since refuel</source>
        <translation>Seit dem Tanken</translation>
    </message>
    <message>
        <source>Since start</source>
        <translation>Seit dem Start</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>Einzeln</translation>
    </message>
    <message>
        <source>Snow</source>
        <translation>Schnee</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Speed warning</source>
        <translation>Tempowarnung</translation>
    </message>
    <message>
        <source>Sport</source>
        <translation>Sport</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Start-stop</source>
        <translation>Start-Stopp</translation>
    </message>
    <message>
        <source>Steering</source>
        <translation>Lenkung</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Sunroof</source>
        <translation>Schiebedach</translation>
    </message>
    <message>
        <source>Switch on</source>
        <translation>Einschalten</translation>
    </message>
    <message>
        <source>Synchronous</source>
        <translation>Synchron</translation>
    </message>
    <message>
        <source>Tailgate</source>
        <translation>Heckklappe</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>To face</source>
        <translation>Zum Gesicht</translation>
    </message>
    <message>
        <source>To feet</source>
        <translation>Zu den Füßen</translation>
    </message>
    <message>
        <source>To window</source>
        <translation>Zur Scheibe</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Verkehr</translation>
    </message>
    <message>
        <source>Trip</source>
        <translation>Reise</translation>
    </message>
    <message>
        <source>Tune knob left</source>
        <translation>Sendersuche links</translation>
    </message>
    <message>
        <source>Tune knob right</source>
        <translation>Sendersuche rechts</translation>
    </message>
    <message>
        <source>Twice</source>
        <translation>Doppelt</translation>
    </message>
    <message>
        <source>Tyres</source>
        <translation>Reifen</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Einheiten</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Aufwärts</translation>
    </message>
    <message>
        <source>Vehicle number</source>
        <translation>Fahrgestellnummer</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Very close</source>
        <translation>Sehr nah</translation>
    </message>
    <message>
        <source>Very far</source>
        <translation>Sehr weit</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>Leiser</translation>
    </message>
    <message>
        <source>Volume knob down</source>
        <translation>Lautstärke zurück</translation>
    </message>
    <message>
        <source>Volume knob up</source>
        <translation>Lautstärke vor</translation>
    </message>
    <message>
        <source>Volume up</source>
        <translation>Lauter</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Wiper position</source>
        <translation>Wischerstellung</translation>
    </message>
    <message>
        <source>°C</source>
        <translation>°C</translation>
    </message>
    <message>
        <source>°F</source>
        <translation>°F</translation>
    </message>
</context>
</TS>

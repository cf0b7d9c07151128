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
        <source>A/C max</source>
        <translation>A/C max</translation>
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
        <source>Amplifier</source>
        <translation>Verstärker</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Angled</source>
        <translation>Schräg</translation>
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
        <source>Arrows</source>
        <translation>Pfeile</translation>
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
        <source>Auto compressor</source>
        <translation>Kompressor automatisch</translation>
    </message>
    <message>
        <source>Auto heating driver</source>
        <translation>Heizung automatisch, Fahrer</translation>
    </message>
    <message>
        <source>Auto heating passenger</source>
        <translation>Heizung automatisch, Beifahrer</translation>
    </message>
    <message>
        <source>Auto lock</source>
        <translation>Selbstverriegelung</translation>
    </message>
    <message>
        <source>Auto recirculation</source>
        <translation>Umluft automatisch</translation>
    </message>
    <message>
        <source>Auto unlock</source>
        <translation>Selbstentriegelung</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Durchschnitt</translation>
    </message>
    <message>
        <source>Average consumption</source>
        <translation>Durchschnittsverbrauch</translation>
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
        <source>Backlight</source>
        <translation>Beleuchtung</translation>
    </message>
    <message>
        <source>Backwards</source>
        <translation>Rückwärts</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Balance</translation>
    </message>
    <message>
        <source>Band</source>
        <translation>Wellenbereich</translation>
    </message>
    <message>
        <source>Bass</source>
        <translation>Bässe</translation>
    </message>
    <message>
        <source>Beyond</source>
        <translation>Über das Ende</translation>
    </message>
    <message>
        <source>Blind spot</source>
        <translation>Toter Winkel</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Bonnet</source>
        <translation>Motorhaube</translation>
    </message>
    <message>
        <source>Boot</source>
        <translation>Kofferraum</translation>
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
        <source>Brightest</source>
        <translation>Am hellsten</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Von Hand</translation>
    </message>
    <message>
        <source>Cabin</source>
        <translation>Innenraum</translation>
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
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Car type</source>
        <translation>Fahrzeugtyp</translation>
    </message>
    <message>
        <source>Centerpoint</source>
        <translation>Centerpoint</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Chinesisch</translation>
    </message>
    <message>
        <source>Circulation</source>
        <translation>Luftzufuhr</translation>
    </message>
    <message>
        <source>Clean</source>
        <translation>Reinigung</translation>
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
        <source>Comfort curve</source>
        <translation>Komfortkurve</translation>
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
        <source>Darkest</source>
        <translation>Am dunkelsten</translation>
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
        <source>Degrees</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>Digit</source>
        <translation>Ziffer</translation>
    </message>
    <message>
        <source>Dipped</source>
        <translation>Abblendlicht</translation>
    </message>
    <message>
        <source>Dipped and fog</source>
        <translation>Abblend- und Nebelschlusslicht</translation>
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
        <source>Down left</source>
        <translation>Links unten</translation>
    </message>
    <message>
        <source>Down right</source>
        <translation>Rechts unten</translation>
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
        <source>Driver stage</source>
        <translation>Klangbühne Fahrer</translation>
    </message>
    <message>
        <source>Dual</source>
        <translation>Zwei Zonen</translation>
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
        <translation>Spritspartipps</translation>
    </message>
    <message>
        <source>Eject</source>
        <translation>Auswerfen</translation>
    </message>
    <message>
        <source>Emergency</source>
        <translation>Notruf</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Antrieb</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Englisch</translation>
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
        <source>Fader</source>
        <translation>Fader</translation>
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
        <source>Fast</source>
        <translation>Schnell</translation>
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
        <source>First forward</source>
        <translation>Beim ersten Vorwärtsgang</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Anklappen</translation>
    </message>
    <message>
        <source>Follow me</source>
        <translation>Nachleuchten</translation>
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
        <source>Forward gear</source>
        <translation>Vorwärtsgang</translation>
    </message>
    <message>
        <source>Fresh air cycle</source>
        <translation>Frischluftzyklus</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Vorn</translation>
    </message>
    <message>
        <source>Front and around</source>
        <translation>Vorn und ringsum</translation>
    </message>
    <message>
        <source>Front and left</source>
        <translation>Vorn und links</translation>
    </message>
    <message>
        <source>Front and right</source>
        <translation>Vorn und rechts</translation>
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
        <source>Front service</source>
        <translation>Wartungsstellung vorn</translation>
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
        <source>Grey</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>Hand</source>
        <translation>Handbremse</translation>
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
        <source>Heating driver</source>
        <translation>Heizung Fahrer</translation>
    </message>
    <message>
        <source>Heating passenger</source>
        <translation>Heizung Beifahrer</translation>
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
        <source>Indicator volume</source>
        <translation>Blinkerlautstärke</translation>
    </message>
    <message>
        <source>Individual</source>
        <translation>Individual</translation>
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
        <source>Introduction</source>
        <translation>Einführung</translation>
    </message>
    <message>
        <source>Ioniser</source>
        <translation>Ionisator</translation>
    </message>
    <message>
        <source>Ioniser at start</source>
        <translation>Ionisator beim Start</translation>
    </message>
    <message>
        <source>Ioniser mode</source>
        <translation>Ionisatorart</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Taste</translation>
    </message>
    <message>
        <source>Key form</source>
        <translation>Tastenmeldung</translation>
    </message>
    <message>
        <source>Key position</source>
        <translation>Sitz je Schlüssel</translation>
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
        <source>Lane departure</source>
        <translation>Spurverlassen</translation>
    </message>
    <message>
        <source>Lane keeping</source>
        <translation>Spurhalten</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
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
        <source>Left indicator</source>
        <translation>Blinker links</translation>
    </message>
    <message>
        <source>Left mirror</source>
        <translation>Spiegel links</translation>
    </message>
    <message>
        <source>Left step</source>
        <translation>Stufe links</translation>
    </message>
    <message>
        <source>Lids</source>
        <translation>Klappen</translation>
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
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Beladung</translation>
    </message>
    <message>
        <source>Lock sound</source>
        <translation>Verriegelungston</translation>
    </message>
    <message>
        <source>Long</source>
        <translation>Lang</translation>
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
        <source>Map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Medien</translation>
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
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Mittel</translation>
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
        <source>Moving object</source>
        <translation>Bewegte Objekte</translation>
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
        <source>Night brightness</source>
        <translation>Nachthelligkeit</translation>
    </message>
    <message>
        <source>No signal</source>
        <translation>Kein Signal</translation>
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
        <translation>Gelände individual</translation>
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
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
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
        <source>Outside</source>
        <translation>Außen</translation>
    </message>
    <message>
        <source>PA</source>
        <translation>PA</translation>
    </message>
    <message>
        <source>Parallel</source>
        <translation>Längs</translation>
    </message>
    <message>
        <source>Parallel parking</source>
        <translation>Längs einparken</translation>
    </message>
    <message>
        <source>Parking</source>
        <translation>Parken</translation>
    </message>
    <message>
        <source>Parking picture</source>
        <translation>Parkbild</translation>
    </message>
    <message>
        <source>Perpendicular</source>
        <translation>Quer</translation>
    </message>
    <message>
        <source>Perpendicular parking</source>
        <translation>Quer einparken</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
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
        <source>Power time</source>
        <translation>Laufzeit</translation>
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
        <source>Rear and around</source>
        <translation>Hinten und ringsum</translation>
    </message>
    <message>
        <source>Rear and left</source>
        <translation>Hinten und links</translation>
    </message>
    <message>
        <source>Rear and right</source>
        <translation>Hinten und rechts</translation>
    </message>
    <message>
        <source>Rear defrost</source>
        <translation>Heckscheibenheizung</translation>
    </message>
    <message>
        <source>Rear left</source>
        <translation>Hinten links</translation>
    </message>
    <message>
        <source>Rear reversing</source>
        <translation>Hinten beim Rückwärtsfahren</translation>
    </message>
    <message>
        <source>Rear right</source>
        <translation>Hinten rechts</translation>
    </message>
    <message>
        <source>Rear seat</source>
        <translation>Rücksitz</translation>
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
        <source>Relax</source>
        <translation>Entspannung</translation>
    </message>
    <message>
        <source>Remote</source>
        <translation>Fernbedienung</translation>
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
        <source>Right indicator</source>
        <translation>Blinker rechts</translation>
    </message>
    <message>
        <source>Right mirror</source>
        <translation>Spiegel rechts</translation>
    </message>
    <message>
        <source>Right step</source>
        <translation>Stufe rechts</translation>
    </message>
    <message>
        <source>Roller down</source>
        <translation>Walze ab</translation>
    </message>
    <message>
        <source>Roller up</source>
        <translation>Walze auf</translation>
    </message>
    <message>
        <source>SOS</source>
        <translation>SOS</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skala</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Suchlauf</translation>
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
        <source>Sensor</source>
        <translation>Sensor</translation>
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
        <source>Short</source>
        <translation>Kurz</translation>
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
        <translation>Ab Tanken</translation>
    </message>
    <message>
        <source>Since start</source>
        <translation>Ab Start</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>Einzeln</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Langsam</translation>
    </message>
    <message>
        <source>Smart entry</source>
        <translation>Kluger Einstieg</translation>
    </message>
    <message>
        <source>Snow</source>
        <translation>Schnee</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>Sanft</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Speed limit</source>
        <translation>Tempowarnung</translation>
    </message>
    <message>
        <source>Speed lock</source>
        <translation>Verriegeln beim Fahren</translation>
    </message>
    <message>
        <source>Speed volume</source>
        <translation>Tempolautstärke</translation>
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
        <source>Start animation</source>
        <translation>Startanimation</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Startzeit</translation>
    </message>
    <message>
        <source>Start-stop</source>
        <translation>Start-Stopp</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>Beginnt</translation>
    </message>
    <message>
        <source>Steering</source>
        <translation>Lenkung</translation>
    </message>
    <message>
        <source>Steering mode</source>
        <translation>Lenkmodus</translation>
    </message>
    <message>
        <source>Steering wheel</source>
        <translation>Lenkrad</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Stufen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>Sunroof</source>
        <translation>Schiebedach</translation>
    </message>
    <message>
        <source>Surround</source>
        <translation>Rundum</translation>
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
        <source>Temperature</source>
        <translation>Temperatur</translation>
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
        <source>Treble</source>
        <translation>Höhen</translation>
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
        <source>Turning fog</source>
        <translation>Nebelabbiegelicht</translation>
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
        <source>Unlock</source>
        <translation>Entriegeln</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Aufwärts</translation>
    </message>
    <message>
        <source>Up left</source>
        <translation>Links oben</translation>
    </message>
    <message>
        <source>Up right</source>
        <translation>Rechts oben</translation>
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
        <source>Video</source>
        <translation>Video</translation>
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
        <source>Warning volume</source>
        <translation>Warnlautstärke</translation>
    </message>
    <message>
        <source>Way</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Begrüßung</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Window and roof</source>
        <translation>Fenster und Dach</translation>
    </message>
    <message>
        <source>Wiper position</source>
        <translation>Wischerstellung</translation>
    </message>
    <message>
        <source>Wipers</source>
        <translation>Scheibenwischer</translation>
    </message>
    <message>
        <source>Wish AM</source>
        <translation>Wunsch AM</translation>
    </message>
    <message>
        <source>Wish AUX</source>
        <translation>Wunsch AUX</translation>
    </message>
    <message>
        <source>Wish Bluetooth</source>
        <translation>Wunsch Bluetooth</translation>
    </message>
    <message>
        <source>Wish CD</source>
        <translation>Wunsch CD</translation>
    </message>
    <message>
        <source>Wish FM</source>
        <translation>Wunsch FM</translation>
    </message>
    <message>
        <source>Wish USB</source>
        <translation>Wunsch USB</translation>
    </message>
    <message>
        <source>Wish answer</source>
        <translation>Wunsch Annehmen</translation>
    </message>
    <message>
        <source>Wish refuse</source>
        <translation>Wunsch Ablehnen</translation>
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

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>CanBus_Raise_Volkswagen</name>
    <message>
        <source>Car infos</source>
        <translation>Fahrzeuginfos</translation>
    </message>
</context>
<context>
    <name>SelectDialog</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>VWFunctionSetting</name>
    <message>
        <source>Factory settings</source>
        <translation>Werkseinstellungen</translation>
    </message>
    <message>
        <source>Are you sure restore</source>
        <translation>Wirklich</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>auf Werkseinstellung zurücksetzen</translation>
    </message>
    <message>
        <source>Driving data</source>
        <translation>Fahrdaten</translation>
    </message>
    <message>
        <source>Are you sure </source>
        <translation>Wirklich </translation>
    </message>
    <message>
        <source>The car has not told its value</source>
        <translation>Das Fahrzeug hat den Wert noch nicht gemeldet</translation>
    </message>
    <message>
        <source>%1 %2 %3 ?</source>
        <translation>%1 „%2“ %3?</translation>
    </message>
    <message>
        <source>?</source>
        <translation>?</translation>
    </message>
</context>
<context>
    <name>VolkswagenWindow</name>
    <message>
        <source>Car infos</source>
        <translation>Fahrzeuginfos</translation>
    </message>
    <message>
        <source>Driving data</source>
        <translation>Fahrdaten</translation>
    </message>
    <message>
        <source>Tire pressure</source>
        <translation>Reifendruck</translation>
    </message>
    <message>
        <source>Car status</source>
        <translation>Fahrzeugstatus</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Reichweite</translation>
    </message>
    <message>
        <source>Consumption</source>
        <translation>Verbrauch</translation>
    </message>
    <message>
        <source>Avg. consumption</source>
        <translation>Ø Verbrauch</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Strecke</translation>
    </message>
    <message>
        <source>Avg. speed</source>
        <translation>Ø Tempo</translation>
    </message>
    <message>
        <source>Tire pressure status</source>
        <translation>Reifendruckstatus</translation>
    </message>
    <message>
        <source>Since start</source>
        <translation>Ab Start</translation>
    </message>
    <message>
        <source>Since refueling</source>
        <translation>Ab Tanken</translation>
    </message>
    <message>
        <source>Long-term</source>
        <translation>Langzeit</translation>
    </message>
    <message>
        <source>Normal pressure</source>
        <translation>Druck normal</translation>
    </message>
    <message>
        <source>Low pressure</source>
        <translation>Druck zu niedrig</translation>
    </message>
    <message>
        <source>Hight pressure</source>
        <translation>Druck zu hoch</translation>
    </message>
    <message>
        <source>Tire pressure is normal</source>
        <translation>Reifendruck ist normal</translation>
    </message>
    <message>
        <source>Please check the tire pressure</source>
        <translation>Bitte Reifendruck prüfen</translation>
    </message>
    <message>
        <source>Tire pressure is too low</source>
        <translation>Reifendruck ist zu niedrig</translation>
    </message>
    <message>
        <source>Tire pressure loss</source>
        <translation>Reifendruckverlust</translation>
    </message>
    <message>
        <source>mi</source>
        <translation>mi</translation>
    </message>
    <message>
        <source>km</source>
        <translation>km</translation>
    </message>
    <message>
        <source>km/h</source>
        <translation>km/h</translation>
    </message>
    <message>
        <source>mph</source>
        <translation>mph</translation>
    </message>
    <message>
        <source>L/100km</source>
        <translation>l/100 km</translation>
    </message>
    <message>
        <source>km/L</source>
        <translation>km/l</translation>
    </message>
    <message>
        <source>mph(UK)</source>
        <translation>mpg (UK)</translation>
    </message>
    <message>
        <source>mph(US)</source>
        <translation>mpg (US)</translation>
    </message>
    <message>
        <source>Service overdue</source>
        <translation>Service überfällig</translation>
    </message>
    <message>
        <source>Time (h:min)</source>
        <translation>Fahrzeit (h:min)</translation>
    </message>
    <message>
        <source>not in this car</source>
        <translation>nicht vorhanden</translation>
    </message>
</context>
<context>
    <name>Vw</name>
    <message>
        <source>No entries available</source>
        <translation>Keine Einträge vorhanden</translation>
    </message>
    <message>
        <source>overdue by</source>
        <translation>überfällig:</translation>
    </message>
    <message>
        <source>Start-stop system is deactivated</source>
        <translation>Start-Stopp-System ist deaktiviert</translation>
    </message>
    <message>
        <source>Start-stop system is activated</source>
        <translation>Start-Stopp-System ist aktiviert</translation>
    </message>
    <message>
        <source>Report code</source>
        <translation>Meldungscode</translation>
    </message>
    <message>
        <source>days</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>mi</source>
        <translation>mi</translation>
    </message>
    <message>
        <source>km</source>
        <translation>km</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>AUS</translation>
    </message>
    <message>
        <source>Activated</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>ESC sport</source>
        <translation>ESC Sport</translation>
    </message>
    <message>
        <source>Esc system</source>
        <translation>ESC-System</translation>
    </message>
    <message>
        <source>Tyres</source>
        <translation>Reifen</translation>
    </message>
    <message>
        <source>Driver assistance</source>
        <translation>Fahrerassistenz</translation>
    </message>
    <message>
        <source>Parking and manoeuvring</source>
        <translation>Parken und Rangieren</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Licht</translation>
    </message>
    <message>
        <source>Mirrors and wipers</source>
        <translation>Spiegel und Wischer</translation>
    </message>
    <message>
        <source>Opening and closing</source>
        <translation>Öffnen und Schließen</translation>
    </message>
    <message>
        <source>Multifunction display</source>
        <translation>Multifunktionsanzeige</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Service</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Einheiten</translation>
    </message>
    <message>
        <source>Seat driver profile</source>
        <translation>Fahrerprofil und Sitz</translation>
    </message>
    <message>
        <source>Vehice status Start-stop</source>
        <translation>Fahrzeugstatus: Start-Stopp</translation>
    </message>
    <message>
        <source>Vehice status reports</source>
        <translation>Fahrzeugstatus: Meldungen</translation>
    </message>
    <message>
        <source>Convenience consumer</source>
        <translation>Komfortverbraucher</translation>
    </message>
    <message>
        <source>Factory settings</source>
        <translation>Werkseinstellungen</translation>
    </message>
    <message>
        <source>km/h</source>
        <translation>km/h</translation>
    </message>
    <message>
        <source>Comfortable</source>
        <translation>Komfort</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Full load</source>
        <translation>Volle Beladung</translation>
    </message>
    <message>
        <source>Speed warning</source>
        <translation>Geschwindigkeitswarnung</translation>
    </message>
    <message>
        <source>Warning speed</source>
        <translation>Warngeschwindigkeit</translation>
    </message>
    <message>
        <source>TPMS SET</source>
        <translation>Reifendruck speichern</translation>
    </message>
    <message>
        <source>Direct tyres pressure monitoring</source>
        <translation>Direkte Reifendruckkontrolle</translation>
    </message>
    <message>
        <source>Eco</source>
        <translation>Eco</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Sport</source>
        <translation>Sport</translation>
    </message>
    <message>
        <source>Very close</source>
        <translation>Sehr nah</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Nah</translation>
    </message>
    <message>
        <source>Far</source>
        <translation>Weit</translation>
    </message>
    <message>
        <source>Very far</source>
        <translation>Sehr weit</translation>
    </message>
    <message>
        <source>Lane assist</source>
        <translation>Spurhalteassistent</translation>
    </message>
    <message>
        <source>Lane keeping assist system</source>
        <translation>Spurführungsassistent</translation>
    </message>
    <message>
        <source>Driver alert system</source>
        <translation>Müdigkeitserkennung</translation>
    </message>
    <message>
        <source>Front assist</source>
        <translation>Front Assist</translation>
    </message>
    <message>
        <source>Advance warning</source>
        <translation>Vorwarnung</translation>
    </message>
    <message>
        <source>Display distance warning</source>
        <translation>Abstandswarnung anzeigen</translation>
    </message>
    <message>
        <source>Adaptive cruise control</source>
        <translation>Automatische Distanzregelung</translation>
    </message>
    <message>
        <source>Last distance selected</source>
        <translation>Zuletzt gewählter Abstand</translation>
    </message>
    <message>
        <source>Drive program</source>
        <translation>Fahrprogramm</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distanz</translation>
    </message>
    <message>
        <source>Hill Descent Control</source>
        <translation>Bergabfahrassistent</translation>
    </message>
    <message>
        <source>Activa automatically</source>
        <translation>Automatisch aktivieren</translation>
    </message>
    <message>
        <source>Parking brake function</source>
        <translation>Rangierbremsfunktion</translation>
    </message>
    <message>
        <source>Front volume</source>
        <translation>Lautstärke vorn</translation>
    </message>
    <message>
        <source>Front tone setting</source>
        <translation>Tonhöhe vorn</translation>
    </message>
    <message>
        <source>Rear volume</source>
        <translation>Lautstärke hinten</translation>
    </message>
    <message>
        <source>Rear tone setting</source>
        <translation>Tonhöhe hinten</translation>
    </message>
    <message>
        <source>Radar sound</source>
        <translation>Radarton</translation>
    </message>
    <message>
        <source>Early</source>
        <translation>Früh</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Late</source>
        <translation>Spät</translation>
    </message>
    <message>
        <source>Right traffic</source>
        <translation>Rechtsverkehr</translation>
    </message>
    <message>
        <source>Left traffic</source>
        <translation>Linksverkehr</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Switch-on time</source>
        <translation>Einschaltzeit</translation>
    </message>
    <message>
        <source>Automatic headlight control in rain</source>
        <translation>Automatisches Fahrlicht bei Regen</translation>
    </message>
    <message>
        <source>Lane change flash</source>
        <translation>Komfortblinken</translation>
    </message>
    <message>
        <source>Instrument/switch lighting</source>
        <translation>Instrumenten-/Schalterbeleuchtung</translation>
    </message>
    <message>
        <source>Coming home function</source>
        <translation>Coming-Home-Funktion</translation>
    </message>
    <message>
        <source>Leaving home function</source>
        <translation>Leaving-Home-Funktion</translation>
    </message>
    <message>
        <source>Travel mode</source>
        <translation>Reisemodus</translation>
    </message>
    <message>
        <source>Door ambient light</source>
        <translation>Türbeleuchtung</translation>
    </message>
    <message>
        <source>Foowell light</source>
        <translation>Fußraumbeleuchtung</translation>
    </message>
    <message>
        <source>Head light</source>
        <translation>Dachbeleuchtung</translation>
    </message>
    <message>
        <source>Front light</source>
        <translation>Beleuchtung vorn</translation>
    </message>
    <message>
        <source>All light</source>
        <translation>Alle Leuchten</translation>
    </message>
    <message>
        <source>Motorway light</source>
        <translation>Autobahnlicht</translation>
    </message>
    <message>
        <source>Dynamic light assist</source>
        <translation>Dynamischer Lichtassistent</translation>
    </message>
    <message>
        <source>Interior environment lighting color</source>
        <translation>Farbe der Ambientebeleuchtung</translation>
    </message>
    <message>
        <source>Headlight illumination distance</source>
        <translation>Leuchtweite</translation>
    </message>
    <message>
        <source>Daytime running lights</source>
        <translation>Tagfahrlicht</translation>
    </message>
    <message>
        <source>Synchronous adjustment</source>
        <translation>Synchronverstellung</translation>
    </message>
    <message>
        <source>Lower while reversing</source>
        <translation>Absenken beim Rückwärtsfahren</translation>
    </message>
    <message>
        <source>Automatic wiping in rain</source>
        <translation>Automatisches Wischen bei Regen</translation>
    </message>
    <message>
        <source>Rear window wiping in reverse gear</source>
        <translation>Heckwischen im Rückwärtsgang</translation>
    </message>
    <message>
        <source>Fold away after parking</source>
        <translation>Beim Parken anklappen</translation>
    </message>
    <message>
        <source>Driver window</source>
        <translation>Fahrerfenster</translation>
    </message>
    <message>
        <source>All window</source>
        <translation>Alle Fenster</translation>
    </message>
    <message>
        <source>Vehicle side</source>
        <translation>Fahrzeugseite</translation>
    </message>
    <message>
        <source>Single door</source>
        <translation>Einzelne Tür</translation>
    </message>
    <message>
        <source>All doors</source>
        <translation>Alle Türen</translation>
    </message>
    <message>
        <source>Convenience opening</source>
        <translation>Komfortöffnen</translation>
    </message>
    <message>
        <source>Door unlocking</source>
        <translation>Türentriegelung</translation>
    </message>
    <message>
        <source>Automatic locking</source>
        <translation>Automatisches Verriegeln</translation>
    </message>
    <message>
        <source>Inductive rear tailgate</source>
        <translation>Sensorgesteuerte Heckklappe</translation>
    </message>
    <message>
        <source>Acoustic confirmation</source>
        <translation>Akustische Bestätigung</translation>
    </message>
    <message>
        <source>Front window</source>
        <translation>Fenster vorn</translation>
    </message>
    <message>
        <source>Rear window</source>
        <translation>Fenster hinten</translation>
    </message>
    <message>
        <source>Sliding sunroof</source>
        <translation>Schiebedach</translation>
    </message>
    <message>
        <source>Current consumption</source>
        <translation>Momentanverbrauch</translation>
    </message>
    <message>
        <source>Average consumption</source>
        <translation>Durchschnittsverbrauch</translation>
    </message>
    <message>
        <source>Convenience consumption</source>
        <translation>Verbrauch der Komfortverbraucher</translation>
    </message>
    <message>
        <source>Eco tips</source>
        <translation>Spritspartipps</translation>
    </message>
    <message>
        <source>Travelling time</source>
        <translation>Fahrzeit</translation>
    </message>
    <message>
        <source>Distance travelled</source>
        <translation>Zurückgelegte Strecke</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>Durchschnittsgeschwindigkeit</translation>
    </message>
    <message>
        <source>Digital speed display</source>
        <translation>Digitale Geschwindigkeitsanzeige</translation>
    </message>
    <message>
        <source>Oil temperature</source>
        <translation>Öltemperatur</translation>
    </message>
    <message>
        <source>Vehicle NO.</source>
        <translation>Fahrgestellnummer</translation>
    </message>
    <message>
        <source>Inspection days</source>
        <translation>Inspektion (Zeit)</translation>
    </message>
    <message>
        <source>Inspection distance</source>
        <translation>Inspektion (Strecke)</translation>
    </message>
    <message>
        <source>Oil change service days</source>
        <translation>Ölwechsel (Zeit)</translation>
    </message>
    <message>
        <source>Oil change service distance</source>
        <translation>Ölwechsel (Strecke)</translation>
    </message>
    <message>
        <source>Wiper in maintenance position</source>
        <translation>Wischer in Servicestellung</translation>
    </message>
    <message>
        <source>Reset &quot;Since start&quot;</source>
        <translation>„Ab Start“ zurücksetzen</translation>
    </message>
    <message>
        <source>Reset &quot;Long-term&quot;</source>
        <translation>„Langzeit“ zurücksetzen</translation>
    </message>
    <message>
        <source>Reset maintenance cycle</source>
        <translation>Serviceintervall zurücksetzen</translation>
    </message>
    <message>
        <source>mph</source>
        <translation>mph</translation>
    </message>
    <message>
        <source>℃</source>
        <translation>℃</translation>
    </message>
    <message>
        <source>℉</source>
        <translation>℉</translation>
    </message>
    <message>
        <source>L</source>
        <translation>l</translation>
    </message>
    <message>
        <source>gal(UK)</source>
        <translation>gal (UK)</translation>
    </message>
    <message>
        <source>gal(US)</source>
        <translation>gal (US)</translation>
    </message>
    <message>
        <source>mpg(UK)</source>
        <translation>mpg (UK)</translation>
    </message>
    <message>
        <source>L/100km</source>
        <translation>l/100 km</translation>
    </message>
    <message>
        <source>mpg(US)</source>
        <translation>mpg (US)</translation>
    </message>
    <message>
        <source>km/L</source>
        <translation>km/l</translation>
    </message>
    <message>
        <source>bar</source>
        <translation>bar</translation>
    </message>
    <message>
        <source>psi</source>
        <translation>psi</translation>
    </message>
    <message>
        <source>kPa</source>
        <translation>kPa</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Consumption</source>
        <translation>Verbrauch</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Alle Einstellungen</translation>
    </message>
    <message>
        <source>ECO</source>
        <translation>ECO</translation>
    </message>
    <message>
        <source>Individual</source>
        <translation>Individual</translation>
    </message>
    <message>
        <source>Snow</source>
        <translation>Schnee</translation>
    </message>
    <message>
        <source>Off-road</source>
        <translation>Gelände</translation>
    </message>
    <message>
        <source>Off-road individual</source>
        <translation>Gelände individual</translation>
    </message>
    <message>
        <source>Remote key activated</source>
        <translation>Funkschlüssel aktiviert</translation>
    </message>
    <message>
        <source>Remote key memory matching</source>
        <translation>Memory dem Funkschlüssel zuordnen</translation>
    </message>
    <message>
        <source>Driving mode</source>
        <translation>Fahrmodus</translation>
    </message>
    <message>
        <source>Steering</source>
        <translation>Lenkung</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Antrieb</translation>
    </message>
    <message>
        <source>Climate</source>
        <translation>Klima</translation>
    </message>
    <message>
        <source>Front lighting</source>
        <translation>Licht vorn</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Car Setting</source>
        <translation>Fahrzeugeinstellungen</translation>
    </message>
    <message>
        <source>Vehice Start-stop</source>
        <translation>Fahrzeug Start-Stopp</translation>
    </message>
    <message>
        <source>Vehice reports</source>
        <translation>Fahrzeugmeldungen</translation>
    </message>
    <message>
        <source>Trailer mode</source>
        <translation>Anhängerbetrieb</translation>
    </message>
    <message>
        <source>Windscreen could become fogged</source>
        <translation>Frontscheibe könnte beschlagen</translation>
    </message>
    <message>
        <source>Operating temperature not maintained</source>
        <translation>Betriebstemperatur nicht erreicht</translation>
    </message>
    <message>
        <source>No driver detected</source>
        <translation>Kein Fahrer erkannt</translation>
    </message>
    <message>
        <source>Gearbox requires engine to be running</source>
        <translation>Getriebe benötigt laufenden Motor</translation>
    </message>
    <message>
        <source>Power consumption is high</source>
        <translation>Stromverbrauch ist hoch</translation>
    </message>
    <message>
        <source>Starting start-stop system</source>
        <translation>Start-Stopp-System startet</translation>
    </message>
    <message>
        <source>Engine must be running</source>
        <translation>Motor muss laufen</translation>
    </message>
    <message>
        <source>Gradient too steep</source>
        <translation>Steigung zu groß</translation>
    </message>
    <message>
        <source>Start-stop system is currently not  available</source>
        <translation>Start-Stopp-System derzeit nicht verfügbar</translation>
    </message>
    <message>
        <source>Emergency brake function intervention</source>
        <translation>Eingriff der Notbremsfunktion</translation>
    </message>
    <message>
        <source>Brake requires engine to be running</source>
        <translation>Bremse benötigt laufenden Motor</translation>
    </message>
    <message>
        <source>Power consumption is hight</source>
        <translation>Stromverbrauch ist hoch</translation>
    </message>
    <message>
        <source>Air conditioning requires engine to be running</source>
        <translation>Klimaanlage benötigt laufenden Motor</translation>
    </message>
    <message>
        <source>Steering angle too great</source>
        <translation>Lenkeinschlag zu groß</translation>
    </message>
    <message>
        <source>Manoeuvering mode</source>
        <translation>Rangierbetrieb</translation>
    </message>
    <message>
        <source>Defrost function is switched on</source>
        <translation>Defrostfunktion ist eingeschaltet</translation>
    </message>
    <message>
        <source>Driver seatbelt not fastened</source>
        <translation>Fahrergurt nicht angelegt</translation>
    </message>
    <message>
        <source>Driver door open</source>
        <translation>Fahrertür offen</translation>
    </message>
    <message>
        <source>Accelerator is depressed</source>
        <translation>Gaspedal ist betätigt</translation>
    </message>
    <message>
        <source>Wndscreen heating is switched on</source>
        <translation>Frontscheibenheizung ist eingeschaltet</translation>
    </message>
    <message>
        <source>Maximum air conditioning requires engine to be running</source>
        <translation>Maximale Kühlung benötigt laufenden Motor</translation>
    </message>
    <message>
        <source>Bonnet has been opened</source>
        <translation>Motorhaube wurde geöffnet</translation>
    </message>
    <message>
        <source>Engine stop currently not possible</source>
        <translation>Motorstopp derzeit nicht möglich</translation>
    </message>
    <message>
        <source>Off-road mode is activated</source>
        <translation>Geländemodus ist aktiviert</translation>
    </message>
    <message>
        <source>System protection intervention Buttonlever activated too often</source>
        <translation>Systemschutz: Taste/Hebel zu oft betätigt</translation>
    </message>
    <message>
        <source>Gear is engaged</source>
        <translation>Gang ist eingelegt</translation>
    </message>
    <message>
        <source>Start-stop button pressed</source>
        <translation>Start-Stopp-Taste gedrückt</translation>
    </message>
    <message>
        <source>ACC intervention</source>
        <translation>ACC-Eingriff</translation>
    </message>
    <message>
        <source>Park Assist is activated</source>
        <translation>Parklenkassistent ist aktiviert</translation>
    </message>
    <message>
        <source>ESC is switched off</source>
        <translation>ESC ist ausgeschaltet</translation>
    </message>
    <message>
        <source>Start-stop system requires engine to be running</source>
        <translation>Start-Stopp-System benötigt laufenden Motor</translation>
    </message>
    <message>
        <source>Air conditioning</source>
        <translation>Klimaanlage</translation>
    </message>
    <message>
        <source>Auxiliary heater</source>
        <translation>Zusatzheizung</translation>
    </message>
    <message>
        <source>Rear window heating</source>
        <translation>Heckscheibenheizung</translation>
    </message>
    <message>
        <source>Left seat heating</source>
        <translation>Sitzheizung links</translation>
    </message>
    <message>
        <source>Right seat heating</source>
        <translation>Sitzheizung rechts</translation>
    </message>
    <message>
        <source>Left seat ventilation</source>
        <translation>Sitzlüftung links</translation>
    </message>
    <message>
        <source>Right seat ventilation</source>
        <translation>Sitzlüftung rechts</translation>
    </message>
    <message>
        <source>Left head area heating</source>
        <translation>Kopfraumheizung links</translation>
    </message>
    <message>
        <source>Right head area heating</source>
        <translation>Kopfraumheizung rechts</translation>
    </message>
    <message>
        <source>Front fog light</source>
        <translation>Nebelscheinwerfer</translation>
    </message>
    <message>
        <source>Rear fog light</source>
        <translation>Nebelschlussleuchte</translation>
    </message>
    <message>
        <source>Windscreen heating</source>
        <translation>Frontscheibenheizung</translation>
    </message>
    <message>
        <source>Steering whell heating</source>
        <translation>Lenkradheizung</translation>
    </message>
    <message>
        <source>Mirror heating</source>
        <translation>Spiegelheizung</translation>
    </message>
    <message>
        <source>Rear seat heating</source>
        <translation>Sitzheizung hinten</translation>
    </message>
    <message>
        <source>Rear seat ventilation</source>
        <translation>Sitzlüftung hinten</translation>
    </message>
    <message>
        <source>Socket</source>
        <translation>Steckdose</translation>
    </message>
    <message>
        <source>Drink holder</source>
        <translation>Getränkehalter</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Gesendet</translation>
    </message>
    <message>
        <source>Waiting for the car</source>
        <translation>Warten auf das Fahrzeug</translation>
    </message>
    <message>
        <source>Last report %1 min ago</source>
        <translation>Letzte Meldung vor %1 min</translation>
    </message>
    <message>
        <source>Last report %1 h ago</source>
        <translation>Letzte Meldung vor %1 h</translation>
    </message>
</context>
<context>
    <name>XinHangSettings</name>
    <message>
        <source>Original car</source>
        <translation>Originalkamera</translation>
    </message>
    <message>
        <source>360</source>
        <translation>360</translation>
    </message>
    <message>
        <source>Add camera</source>
        <translation>Zusatzkamera</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>AfterMarket Camera</source>
        <translation>Nachrüstkamera</translation>
    </message>
    <message>
        <source>OE Camera</source>
        <translation>Originalkamera</translation>
    </message>
    <message>
        <source>AfterMarket 360</source>
        <translation>360° nachgerüstet</translation>
    </message>
    <message>
        <source>CVBS</source>
        <translation>CVBS</translation>
    </message>
    <message>
        <source>VGA</source>
        <translation>VGA</translation>
    </message>
    <message>
        <source>Parking Key</source>
        <translation>Parktaste</translation>
    </message>
    <message>
        <source>Reverse State</source>
        <translation>Rückfahrstatus</translation>
    </message>
    <message>
        <source>Gear Position</source>
        <translation>Gangstellung</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertikal</translation>
    </message>
    <message>
        <source>Horizontal and vertical</source>
        <translation>Horizontal und vertikal</translation>
    </message>
    <message>
        <source>Reversing camera</source>
        <translation>Rückfahrkamera</translation>
    </message>
    <message>
        <source>Right camera</source>
        <translation>Rechte Kamera</translation>
    </message>
    <message>
        <source>Reversing track</source>
        <translation>Rückfahrlinien</translation>
    </message>
    <message>
        <source>Reversing radar</source>
        <translation>Rückfahrradar</translation>
    </message>
    <message>
        <source>Car type</source>
        <translation>Fahrzeugtyp</translation>
    </message>
    <message>
        <source>Display type</source>
        <translation>Anzeigetyp</translation>
    </message>
    <message>
        <source>Sound type</source>
        <translation>Tontyp</translation>
    </message>
    <message>
        <source>Reverse camera</source>
        <translation>Art der Rückfahrkamera</translation>
    </message>
    <message>
        <source>Starting front view</source>
        <translation>Frontansicht beim Start</translation>
    </message>
    <message>
        <source>Steering front view</source>
        <translation>Frontansicht beim Lenken</translation>
    </message>
    <message>
        <source>Reversing front view</source>
        <translation>Frontansicht nach Rückwärtsfahrt</translation>
    </message>
    <message>
        <source>Dedicated right view</source>
        <translation>Eigene Ansicht rechts</translation>
    </message>
    <message>
        <source>Front view after right view</source>
        <translation>Frontansicht nach Ansicht rechts</translation>
    </message>
    <message>
        <source>Rear video format</source>
        <translation>Videoformat hinten</translation>
    </message>
    <message>
        <source>Reverse condition</source>
        <translation>Rückwärtsgang erkennen an</translation>
    </message>
    <message>
        <source>Front view mirror</source>
        <translation>Spiegelung vorn</translation>
    </message>
    <message>
        <source>Right view mirror</source>
        <translation>Spiegelung rechts</translation>
    </message>
    <message>
        <source>Rear view mirror</source>
        <translation>Spiegelung hinten</translation>
    </message>
    <message>
        <source>Reverse track</source>
        <translation>Rückfahrlinien</translation>
    </message>
    <message>
        <source>Reverse radar</source>
        <translation>Rückfahrradar</translation>
    </message>
</context>
<context>
    <name>XinHangSettingsWindow</name>
    <message>
        <source>Car Setting</source>
        <translation>Fahrzeugeinstellungen</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>AirConditionDlg</name>
    <message>
        <source>OFF</source>
        <translation>AUS</translation>
    </message>
    <message>
        <source>AUTO</source>
        <translation>AUTO</translation>
    </message>
    <message>
        <source>A/C</source>
        <translation>A/C</translation>
    </message>
    <message>
        <source>PTC</source>
        <translation>PTC</translation>
    </message>
</context>
<context>
    <name>OrbChoiceDialog</name>
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
    <name>OrbCommons</name>
    <message>
        <source>Radio</source>
        <translation>Radio</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musik</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>Navigation</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>CAN information</source>
        <translation>CAN-Informationen</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>Update available</source>
        <translation>Aktualisierung verfügbar</translation>
    </message>
    <message>
        <source>Updating</source>
        <translation>Aktualisierung läuft</translation>
    </message>
    <message>
        <source>Update has stalled</source>
        <translation>Aktualisierung steht still</translation>
    </message>
    <message>
        <source>Update finished</source>
        <translation>Aktualisierung abgeschlossen</translation>
    </message>
    <message>
        <source>Update failed</source>
        <translation>Aktualisierung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Do not remove the disk and do not switch off the ignition.</source>
        <translation>Datenträger nicht entfernen und Zündung nicht ausschalten.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>New firmware for the CAN decoder was found on the disk. Update now?</source>
        <translation>Auf dem Datenträger wurde neue Firmware für den CAN-Decoder gefunden. Jetzt aktualisieren?</translation>
    </message>
    <message>
        <source>New firmware was found on the disk. Update now?</source>
        <translation>Auf dem Datenträger wurde neue Firmware gefunden. Jetzt aktualisieren?</translation>
    </message>
    <message>
        <source>The new firmware is being transferred.</source>
        <translation>Die neue Firmware wird übertragen.</translation>
    </message>
    <message>
        <source>No more data is being asked for. Wait a minute; if it does not go on, try again.</source>
        <translation>Der Decoder fragt keine Daten mehr ab. Eine Minute warten; geht es nicht weiter, erneut versuchen.</translation>
    </message>
    <message>
        <source>All data was transferred. The disk can be removed.</source>
        <translation>Alle Daten wurden übertragen. Der Datenträger kann entfernt werden.</translation>
    </message>
    <message>
        <source>The update was interrupted (code %1). Check the disk.</source>
        <translation>Die Aktualisierung wurde unterbrochen (Code %1). Bitte den Datenträger prüfen.</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>AirConditionDlg</name>
    <message>
        <source>OFF</source>
        <translation>OFF</translation>
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
        <translation>Annuler</translation>
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
        <translation>Musique</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Téléphone</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>Navigation</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>CAN information</source>
        <translation>Informations CAN</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>Update available</source>
        <translation>Mise à jour disponible</translation>
    </message>
    <message>
        <source>Updating</source>
        <translation>Mise à jour en cours</translation>
    </message>
    <message>
        <source>Update has stalled</source>
        <translation>Mise à jour bloquée</translation>
    </message>
    <message>
        <source>Update finished</source>
        <translation>Mise à jour terminée</translation>
    </message>
    <message>
        <source>Update failed</source>
        <translation>Échec de la mise à jour</translation>
    </message>
    <message>
        <source>Do not remove the disk and do not switch off the ignition.</source>
        <translation>Ne retirez pas le disque et ne coupez pas le contact.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>New firmware for the CAN decoder was found on the disk. Update now?</source>
        <translation>Un nouveau micrologiciel pour le décodeur CAN a été trouvé sur le disque. Mettre à jour maintenant&#xa0;?</translation>
    </message>
    <message>
        <source>New firmware was found on the disk. Update now?</source>
        <translation>Un nouveau micrologiciel a été trouvé sur le disque. Mettre à jour maintenant&#xa0;?</translation>
    </message>
    <message>
        <source>The new firmware is being transferred.</source>
        <translation>Le nouveau micrologiciel est en cours de transfert.</translation>
    </message>
    <message>
        <source>No more data is being asked for. Wait a minute; if it does not go on, try again.</source>
        <translation>Le décodeur ne demande plus de données. Attendez une minute&#xa0;; si rien ne se passe, réessayez.</translation>
    </message>
    <message>
        <source>All data was transferred. The disk can be removed.</source>
        <translation>Toutes les données ont été transférées. Vous pouvez retirer le disque.</translation>
    </message>
    <message>
        <source>The update was interrupted (code %1). Check the disk.</source>
        <translation>La mise à jour a été interrompue (code %1). Vérifiez le disque.</translation>
    </message>
</context>
</TS>

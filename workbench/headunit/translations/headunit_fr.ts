<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>AppPage</name>
    <message>
        <source>This picture comes from the car.</source>
        <translation>Cette image vient du véhicule.</translation>
    </message>
</context>
<context>
    <name>BoxKeysPage</name>
    <message>
        <source>Keys on the steering wheel</source>
        <translation>Touches au volant</translation>
    </message>
    <message>
        <source>Keys on the car&apos;s panel</source>
        <translation>Touches du tableau de bord</translation>
    </message>
    <message>
        <source>This car has no keys</source>
        <translation>Ce véhicule n’a pas de touches</translation>
    </message>
    <message>
        <source>Knobs</source>
        <translation>Boutons rotatifs</translation>
    </message>
</context>
<context>
    <name>BoxPage</name>
    <message>
        <source>Scenario</source>
        <translation>Scénario</translation>
    </message>
    <message>
        <source>Scenarios (*.scn)</source>
        <translation>Scénarios (*.scn)</translation>
    </message>
    <message>
        <source>Waits for the unit&apos;s ready</source>
        <translation>Attend que l’unité soit prête</translation>
    </message>
    <message>
        <source>Talks with the unit</source>
        <translation>Dialogue avec l’unité</translation>
    </message>
    <message>
        <source>Silent: the unit did not acknowledge</source>
        <translation>Muet : l’unité n’a pas acquitté</translation>
    </message>
    <message>
        <source>The unit has not opened the port</source>
        <translation>L’unité n’a pas ouvert le port</translation>
    </message>
    <message>
        <source>Nothing yet</source>
        <translation>Rien encore</translation>
    </message>
    <message>
        <source>Box at %1</source>
        <translation>Boîtier sur %1</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Open ...</source>
        <translation>Ouvrir…</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>None chosen</source>
        <translation>Aucun choisi</translation>
    </message>
    <message>
        <source>%1 plays</source>
        <translation>%1 en cours</translation>
    </message>
    <message>
        <source>Line faults</source>
        <translation>Défauts de ligne</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>Bruit</translation>
    </message>
    <message>
        <source>Cut a package</source>
        <translation>Couper un paquet</translation>
    </message>
    <message>
        <source>Corrupt a package</source>
        <translation>Altérer un paquet</translation>
    </message>
    <message>
        <source>Silence, 3 s</source>
        <translation>Silence, 3 s</translation>
    </message>
    <message>
        <source>What the unit told the box</source>
        <translation>Ce que l’unité a dit au boîtier</translation>
    </message>
    <message>
        <source>Line log</source>
        <translation>Journal de ligne</translation>
    </message>
    <message>
        <source>Flip a bit</source>
        <translation>Inverser un bit</translation>
    </message>
    <message>
        <source>Lose a byte</source>
        <translation>Perdre un octet</translation>
    </message>
    <message>
        <source>Double a byte</source>
        <translation>Doubler un octet</translation>
    </message>
    <message>
        <source>Wrong length</source>
        <translation>Longueur fausse</translation>
    </message>
    <message>
        <source>Stall, 300 ms</source>
        <translation>Blocage, 300 ms</translation>
    </message>
    <message>
        <source>Garbage</source>
        <translation>Octets parasites</translation>
    </message>
    <message>
        <source>Late answer</source>
        <translation>Réponse tardive</translation>
    </message>
    <message>
        <source>Cut the update</source>
        <translation>Couper la mise à jour</translation>
    </message>
    <message>
        <source>Pull the line</source>
        <translation>Débrancher la ligne</translation>
    </message>
    <message>
        <source>Plug it in</source>
        <translation>Rebrancher</translation>
    </message>
    <message>
        <source>Bad line</source>
        <translation>Mauvaise ligne</translation>
    </message>
    <message>
        <source>Good line</source>
        <translation>Bonne ligne</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Arrêté</translation>
    </message>
    <message>
        <source>Silent by order</source>
        <translation>Muet sur ordre</translation>
    </message>
</context>
<context>
    <name>CarPage</name>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Mid left</source>
        <translation>Milieu gauche</translation>
    </message>
    <message>
        <source>Mid right</source>
        <translation>Milieu droit</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
</context>
<context>
    <name>CarPicker</name>
    <message>
        <source>Which car?</source>
        <translation>Quel véhicule ?</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Virtual box</source>
        <translation>Boîtier virtuel</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>The decoder that is fitted</source>
        <translation>Le décodeur monté</translation>
    </message>
    <message>
        <source>Its line: a virtual box, or a serial device of this computer</source>
        <translation>Sa ligne : un boîtier virtuel ou un port série de cet ordinateur</translation>
    </message>
    <message>
        <source>%1 (no virtual box)</source>
        <translation>%1 (pas de boîtier virtuel)</translation>
    </message>
</context>
<context>
    <name>CarView</name>
    <message>
        <source>Front left door open</source>
        <translation>Porte avant gauche ouverte</translation>
    </message>
    <message>
        <source>Front right door open</source>
        <translation>Porte avant droite ouverte</translation>
    </message>
    <message>
        <source>Rear left door open</source>
        <translation>Porte arrière gauche ouverte</translation>
    </message>
    <message>
        <source>Rear right door open</source>
        <translation>Porte arrière droite ouverte</translation>
    </message>
    <message>
        <source>Doors open</source>
        <translation>Portes ouvertes</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>All doors closed</source>
        <translation>Toutes les portes fermées</translation>
    </message>
    <message>
        <source>Steering %1°</source>
        <translation>Direction %1°</translation>
    </message>
    <message>
        <source>Doors not reported</source>
        <translation>Portes non communiquées</translation>
    </message>
    <message>
        <source>The car has reported nothing yet</source>
        <translation>Le véhicule n’a encore rien transmis</translation>
    </message>
</context>
<context>
    <name>DeskWindow</name>
    <message>
        <source>Head unit on the desk</source>
        <translation>Autoradio de bureau</translation>
    </message>
    <message>
        <source>Not sure: %1</source>
        <translation>Incertain : %1</translation>
    </message>
    <message>
        <source>Hello said: the box was sent the ready command</source>
        <translation>Salut envoyé : le boîtier a reçu la commande « prêt »</translation>
    </message>
    <message>
        <source>There is no open line to say hello on</source>
        <translation>Aucune ligne ouverte pour saluer</translation>
    </message>
    <message>
        <source>Saved the last 60 s: %1</source>
        <translation>60 dernières secondes enregistrées : %1</translation>
    </message>
    <message>
        <source>Show the panel (F9)</source>
        <translation>Afficher le panneau (F9)</translation>
    </message>
    <message>
        <source>Fold the panel away (F9)</source>
        <translation>Replier le panneau (F9)</translation>
    </message>
</context>
<context>
    <name>KeyCard</name>
    <message>
        <source>Last key</source>
        <translation>Dernière touche</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Aucune encore</translation>
    </message>
    <message>
        <source>Key %1</source>
        <translation>Touche %1</translation>
    </message>
    <message>
        <source>held, %1×</source>
        <translation>maintenue, %1×</translation>
    </message>
</context>
<context>
    <name>LineLogModel</name>
    <message>
        <source>Time, s</source>
        <translation>Temps, s</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Octets</translation>
    </message>
</context>
<context>
    <name>LinePage</name>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Ligne %1</translation>
    </message>
    <message>
        <source>Packages: %1, %2 a second</source>
        <translation>Paquets : %1, %2 par seconde</translation>
    </message>
    <message>
        <source>Last package: %1</source>
        <translation>Dernier paquet : %1</translation>
    </message>
    <message>
        <source>Acknowledged in: %1</source>
        <translation>Acquitté en : %1</translation>
    </message>
    <message>
        <source>Bad checksums: %1</source>
        <translation>Sommes de contrôle fausses : %1</translation>
    </message>
    <message>
        <source>Skipped bytes: %1</source>
        <translation>Octets ignorés : %1</translation>
    </message>
    <message>
        <source>Repetitions: %1</source>
        <translation>Répétitions : %1</translation>
    </message>
    <message>
        <source>Say hello</source>
        <translation>Saluer</translation>
    </message>
    <message>
        <source>Sends the box the ready command again</source>
        <translation>Renvoie la commande « prêt » au boîtier</translation>
    </message>
    <message>
        <source>Save 60 s</source>
        <translation>Enregistrer 60 s</translation>
    </message>
    <message>
        <source>Line log</source>
        <translation>Journal de ligne</translation>
    </message>
    <message>
        <source>Bytes to look for: 2e 21</source>
        <translation>Octets à chercher : 2e 21</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
</context>
<context>
    <name>LineStatus</name>
    <message>
        <source>the serial library in use tells nothing</source>
        <translation>la bibliothèque série utilisée ne dit rien</translation>
    </message>
    <message>
        <source>the unit has opened no line</source>
        <translation>l’unité n’a ouvert aucune ligne</translation>
    </message>
    <message>
        <source>no such device</source>
        <translation>périphérique inexistant</translation>
    </message>
    <message>
        <source>no permission</source>
        <translation>pas d’autorisation</translation>
    </message>
    <message>
        <source>no permission: join the group %1</source>
        <translation>pas d’autorisation : rejoignez le groupe %1</translation>
    </message>
    <message>
        <source>in use by another process</source>
        <translation>utilisé par un autre processus</translation>
    </message>
    <message>
        <source>in use by %1</source>
        <translation>utilisé par %1</translation>
    </message>
    <message>
        <source>no serial device</source>
        <translation>pas un port série</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>ouverture impossible : %1</translation>
    </message>
    <message>
        <source>line lost</source>
        <translation>ligne perdue</translation>
    </message>
    <message>
        <source>bytes but no packages: other baud rate?</source>
        <translation>des octets mais aucun paquet : autre débit ?</translation>
    </message>
    <message>
        <source>waiting for the box&apos;s first word</source>
        <translation>attend le premier mot du boîtier</translation>
    </message>
    <message>
        <source>talking</source>
        <translation>en dialogue</translation>
    </message>
    <message>
        <source>silent for %1 s</source>
        <translation>muet depuis %1 s</translation>
    </message>
    <message>
        <source>unit too slow: box repeats</source>
        <translation>unité trop lente : le boîtier répète</translation>
    </message>
    <message>
        <source>box stopped</source>
        <translation>boîtier arrêté</translation>
    </message>
    <message>
        <source>box silent by order</source>
        <translation>boîtier muet sur ordre</translation>
    </message>
</context>
<context>
    <name>LineStrip</name>
    <message>
        <source>Save the last 60 s</source>
        <translation>Enregistrer les 60 dernières s</translation>
    </message>
</context>
<context>
    <name>LineWords</name>
    <message>
        <source>%1 packages/s</source>
        <translation>%1 paquets/s</translation>
    </message>
    <message>
        <source>%1 bad</source>
        <translation>faux : %1</translation>
    </message>
    <message>
        <source>%1 bytes skipped</source>
        <translation>octets ignorés : %1</translation>
    </message>
    <message>
        <source>%1 repeated</source>
        <translation>répétés : %1</translation>
    </message>
    <message>
        <source>answered in %1</source>
        <translation>acquitté en %1</translation>
    </message>
    <message>
        <source>never</source>
        <translation>jamais</translation>
    </message>
    <message>
        <source>%1 s ago</source>
        <translation>il y a %1 s</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>aucun encore</translation>
    </message>
</context>
<context>
    <name>ObservationWords</name>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Réglage</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Son</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Ordre</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Caméra</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Application</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Micrologiciel</translation>
    </message>
    <message>
        <source>Radio</source>
        <translation>Radio</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musique</translation>
    </message>
    <message>
        <source>Bluetooth</source>
        <translation>Bluetooth</translation>
    </message>
    <message>
        <source>another one</source>
        <translation>une autre</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucune</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Car</source>
        <translation>Véhicule</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Boîtier</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
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
        <translation>Musique USB</translation>
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
        <translation>En appel</translation>
    </message>
    <message>
        <source>Listening …</source>
        <translation>À l’écoute…</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Muet</translation>
    </message>
    <message>
        <source>Volume %1</source>
        <translation>Volume %1</translation>
    </message>
    <message>
        <source>Track %1</source>
        <translation>Titre %1</translation>
    </message>
    <message>
        <source>Plays</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Pauses</source>
        <translation>En pause</translation>
    </message>
    <message>
        <source>No call</source>
        <translation>Pas d’appel</translation>
    </message>
    <message>
        <source>For the window in front</source>
        <translation>Pour la fenêtre au premier plan</translation>
    </message>
    <message>
        <source>No effect on the desk</source>
        <translation>Sans effet ici</translation>
    </message>
</context>
<context>
    <name>UnitKey</name>
    <message>
        <source>Vol −</source>
        <translation>Vol −</translation>
    </message>
    <message>
        <source>Vol +</source>
        <translation>Vol +</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Muet</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Retour rapide</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avance rapide</translation>
    </message>
    <message>
        <source>Previous track</source>
        <translation>Titre précédent</translation>
    </message>
    <message>
        <source>Next track</source>
        <translation>Titre suivant</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Play/pause</source>
        <translation>Lecture/pause</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Voix</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Appeler</translation>
    </message>
    <message>
        <source>Hang up</source>
        <translation>Raccrocher</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Accueil</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Valider</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Bas</translation>
    </message>
</context>
<context>
    <name>UnitPage</name>
    <message>
        <source>Folder behind the disk</source>
        <translation>Dossier du disque</translation>
    </message>
    <message>
        <source>USB disk</source>
        <translation>Disque USB</translation>
    </message>
    <message>
        <source>Choose the folder that is on the disk.</source>
        <translation>Choisissez le dossier contenu sur le disque.</translation>
    </message>
    <message>
        <source>Plugged in: %1</source>
        <translation>Branché : %1</translation>
    </message>
    <message>
        <source>Pulled out: %1</source>
        <translation>Retiré : %1</translation>
    </message>
    <message>
        <source>Folder ...</source>
        <translation>Dossier…</translation>
    </message>
    <message>
        <source>Pull out</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Put in</source>
        <translation>Brancher</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
</context>
<context>
    <name>UnitShell</name>
    <message>
        <source>Home</source>
        <translation>Accueil</translation>
    </message>
    <message>
        <source>Application %1</source>
        <translation>Application %1</translation>
    </message>
</context>
</TS>

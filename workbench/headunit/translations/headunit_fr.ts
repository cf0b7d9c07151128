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
    <name>BitGrid</name>
    <message>
        <source>The bits are being tried out ...</source>
        <translation>Essai des bits en cours...</translation>
    </message>
    <message>
        <source>The bits could not be tried out.</source>
        <translation>Les bits n&apos;ont pas pu être essayés.</translation>
    </message>
    <message>
        <source>Bits of a package</source>
        <translation>Bits d&apos;un paquet</translation>
    </message>
    <message>
        <source>Package 0x%1 of %2</source>
        <translation>Paquet 0x%1 de %2</translation>
    </message>
</context>
<context>
    <name>BitGridPicture</name>
    <message>
        <source>no effect</source>
        <translation>sans effet</translation>
    </message>
    <message>
        <source>only together with %1</source>
        <translation>seulement avec %1</translation>
    </message>
    <message>
        <source>depends on what the car said before</source>
        <translation>dépend de ce que la voiture a dit avant</translation>
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
        <translation>Muet&#xa0;: l’unité n’a pas acquitté</translation>
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
        <translation>Quel véhicule&#xa0;?</translation>
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
        <translation>Sa ligne&#xa0;: un boîtier virtuel ou un port série de cet ordinateur</translation>
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
        <translation>Incertain&#xa0;: %1</translation>
    </message>
    <message>
        <source>Hello said: the box was sent the ready command</source>
        <translation>Salut envoyé&#xa0;: le boîtier a reçu la commande «&#xa0;prêt&#xa0;»</translation>
    </message>
    <message>
        <source>There is no open line to say hello on</source>
        <translation>Aucune ligne ouverte pour saluer</translation>
    </message>
    <message>
        <source>Saved the last 60 s: %1</source>
        <translation>60 dernières secondes enregistrées&#xa0;: %1</translation>
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
    <name>FilterBar</name>
    <message>
        <source>Keep the filter</source>
        <translation>Garder le filtre</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nom :</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filtre : %1</translation>
    </message>
    <message>
        <source>All words must fit: cmd=0x28, cmd=climate, dir=in, bad, changed, explained, call=set*, screen=Air*, hex=2e28, d2=0x1f, d0.6=1, ack&gt;20, ack=none, t&lt;9.5; ! turns a word round</source>
        <translation>Tous les mots doivent convenir : cmd=0x28, cmd=climate, dir=in, bad, changed, explained, call=set*, screen=Air*, hex=2e28, d2=0x1f, d0.6=1, ack&gt;20, ack=none, t&lt;9.5 ; ! inverse un mot</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Garder</translation>
    </message>
    <message>
        <source>Keeps this filter under a name</source>
        <translation>Garde ce filtre sous un nom</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Oublier</translation>
    </message>
    <message>
        <source>Forgets the kept filter</source>
        <translation>Oublie le filtre gardé</translation>
    </message>
    <message>
        <source>Unexplained</source>
        <translation>Inexpliqué</translation>
    </message>
    <message>
        <source>Hides what is explained</source>
        <translation>Cache ce qui est expliqué</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Changements</translation>
    </message>
    <message>
        <source>Hides packages that are as the one of their command before</source>
        <translation>Cache les paquets identiques au précédent de leur commande</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>InspectionFilter</name>
    <message>
        <source>a command is at most 0xff, not %1</source>
        <translation>une commande va jusqu&apos;à 0xff, pas %1</translation>
    </message>
    <message>
        <source>dir= takes in or out, not &apos;%1&apos;</source>
        <translation>dir= prend in ou out, pas &apos;%1&apos;</translation>
    </message>
    <message>
        <source>hex= takes pairs of hexadecimal digits, not &apos;%1&apos;</source>
        <translation>hex= prend des paires de chiffres hexadécimaux, pas &apos;%1&apos;</translation>
    </message>
    <message>
        <source>&apos;%1&apos; takes a byte</source>
        <translation>&apos;%1&apos; prend un octet</translation>
    </message>
    <message>
        <source>&apos;%1&apos; takes a bit 0 to 7 and 0 or 1</source>
        <translation>&apos;%1&apos; prend un bit de 0 à 7 et 0 ou 1</translation>
    </message>
    <message>
        <source>ack takes &lt; or &gt; and milliseconds, or =none</source>
        <translation>ack prend &lt; ou &gt; et des millisecondes, ou =none</translation>
    </message>
    <message>
        <source>t takes &lt; or &gt; and seconds</source>
        <translation>t prend &lt; ou &gt; et des secondes</translation>
    </message>
    <message>
        <source>&apos;%1&apos; lacks its value</source>
        <translation>il manque la valeur de &apos;%1&apos;</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no word of a filter; there are %2</source>
        <translation>&apos;%1&apos; n&apos;est pas un mot de filtre ; il y a %2</translation>
    </message>
</context>
<context>
    <name>InspectionModel</name>
    <message>
        <source>Time, s</source>
        <translation>Temps, s</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>Paquet</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Données</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>Réponse</translation>
    </message>
    <message>
        <source>Caused</source>
        <translation>Effet</translation>
    </message>
    <message>
        <source>BAD %1</source>
        <translation>MAUVAIS %1</translation>
    </message>
    <message>
        <source>NO PACKAGE</source>
        <translation>PAS UN PAQUET</translation>
    </message>
    <message>
        <source>LINE</source>
        <translation>LIGNE</translation>
    </message>
    <message>
        <source>CALL</source>
        <translation>APPEL</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>TOUCHE</translation>
    </message>
</context>
<context>
    <name>InspectorView</name>
    <message>
        <source>Choose a package to see all of it.</source>
        <translation>Choisissez un paquet pour le voir en entier.</translation>
    </message>
    <message>
        <source>answered in %1</source>
        <translation>réponse en %1</translation>
    </message>
    <message>
        <source>Further calls: %1</source>
        <translation>Autres appels : %1</translation>
    </message>
    <message>
        <source>The unit made nothing of it</source>
        <translation>L&apos;appareil n&apos;en a rien fait</translation>
    </message>
    <message>
        <source>The unit did not take it</source>
        <translation>L&apos;appareil ne l&apos;a pas pris</translation>
    </message>
    <message>
        <source>Calls: %1</source>
        <translation>Appels : %1</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Rien trouvé</translation>
    </message>
    <message>
        <source>Search: 2e 21, setTemperature, climate</source>
        <translation>Chercher : 2e 21, setTemperature, climate</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Bits</source>
        <translation>Bits</translation>
    </message>
    <message>
        <source>What each bit of the chosen package does</source>
        <translation>Ce que fait chaque bit du paquet choisi</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Calls and rates as well (F8)</source>
        <translation>Avec les appels et les fréquences (F8)</translation>
    </message>
    <message>
        <source>Calls (a click goes to the package)</source>
        <translation>Appels (un clic mène au paquet)</translation>
    </message>
    <message>
        <source>Commands (a double click filters)</source>
        <translation>Commandes (un double clic filtre)</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>per s</source>
        <translation>par s</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Changements</translation>
    </message>
    <message>
        <source>Bad</source>
        <translation>Mauvais</translation>
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
    <name>KeyTesterCard</name>
    <message>
        <source>%1 %2 has been down for %3 s and does not come up</source>
        <translation>%1 %2 est enfoncée depuis %3 s et ne remonte pas</translation>
    </message>
    <message>
        <source>no press</source>
        <translation>sans appui</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>rien</translation>
    </message>
    <message>
        <source>Steering wheel</source>
        <translation>Volant</translation>
    </message>
    <message>
        <source>Car&apos;s panel</source>
        <translation>Panneau de la voiture</translation>
    </message>
    <message>
        <source>Knob</source>
        <translation>Bouton rotatif</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>Pressed at %1 s, held %2 times</source>
        <translation>Enfoncée à %1 s, maintenue %2 fois</translation>
    </message>
    <message>
        <source>Still down</source>
        <translation>Encore enfoncée</translation>
    </message>
    <message>
        <source>Came up at %1 s</source>
        <translation>Relâchée à %1 s</translation>
    </message>
    <message>
        <source>Becomes: %1</source>
        <translation>Devient : %1</translation>
    </message>
    <message>
        <source>After redefinition: %1</source>
        <translation>Après redéfinition : %1</translation>
    </message>
    <message>
        <source>the same</source>
        <translation>la même</translation>
    </message>
    <message>
        <source>Key tester</source>
        <translation>Test des touches</translation>
    </message>
    <message>
        <source>Press each key of the car, or of the unit, once: here stands what becomes of it.</source>
        <translation>Appuyez une fois sur chaque touche de la voiture ou de l&apos;appareil : ici s&apos;affiche ce qu&apos;elle devient.</translation>
    </message>
    <message>
        <source>Copy as a key table</source>
        <translation>Copier comme table de touches</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Touche</translation>
    </message>
    <message>
        <source>Pressed, s</source>
        <translation>Appui, s</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Becomes</source>
        <translation>Devient</translation>
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
        <translation>Paquets&#xa0;: %1, %2 par seconde</translation>
    </message>
    <message>
        <source>Last package: %1</source>
        <translation>Dernier paquet&#xa0;: %1</translation>
    </message>
    <message>
        <source>Acknowledged in: %1</source>
        <translation>Acquitté en&#xa0;: %1</translation>
    </message>
    <message>
        <source>Bad checksums: %1</source>
        <translation>Sommes de contrôle fausses&#xa0;: %1</translation>
    </message>
    <message>
        <source>Skipped bytes: %1</source>
        <translation>Octets ignorés&#xa0;: %1</translation>
    </message>
    <message>
        <source>Repetitions: %1</source>
        <translation>Répétitions&#xa0;: %1</translation>
    </message>
    <message>
        <source>Say hello</source>
        <translation>Saluer</translation>
    </message>
    <message>
        <source>Sends the box the ready command again</source>
        <translation>Renvoie la commande «&#xa0;prêt&#xa0;» au boîtier</translation>
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
        <source>Inspector</source>
        <translation>Inspecteur</translation>
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
        <translation>pas d’autorisation&#xa0;: rejoignez le groupe %1</translation>
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
        <translation>ouverture impossible&#xa0;: %1</translation>
    </message>
    <message>
        <source>bytes but no packages: other baud rate?</source>
        <translation>des octets mais aucun paquet&#xa0;: autre débit&#xa0;?</translation>
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
        <translation>unité trop lente&#xa0;: le boîtier répète</translation>
    </message>
    <message>
        <source>box stopped</source>
        <translation>boîtier arrêté</translation>
    </message>
    <message>
        <source>box silent by order</source>
        <translation>boîtier muet sur ordre</translation>
    </message>
    <message>
        <source>line lost: was the adapter pulled out?</source>
        <translation>ligne perdue : l&apos;adaptateur a-t-il été débranché ?</translation>
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
        <translation>faux&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 bytes skipped</source>
        <translation>octets ignorés&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 repeated</source>
        <translation>répétés&#xa0;: %1</translation>
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
    <name>ReplayCard</name>
    <message>
        <source>%1 s of the log, %2 packages</source>
        <translation>%1 s du journal, %2 paquets</translation>
    </message>
    <message>
        <source>Replay: at its end</source>
        <translation>Relecture : terminée</translation>
    </message>
    <message>
        <source>Replay: paused</source>
        <translation>Relecture : en pause</translation>
    </message>
    <message>
        <source>Replay</source>
        <translation>Relecture</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>Barre d&apos;espace</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Pas</translation>
    </message>
    <message>
        <source>Plays the next bytes and pauses (full stop)</source>
        <translation>Rejoue les octets suivants et fait une pause (point)</translation>
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
        <translation>Branché&#xa0;: %1</translation>
    </message>
    <message>
        <source>Pulled out: %1</source>
        <translation>Retiré&#xa0;: %1</translation>
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

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>CarWords</name>
    <message>
        <source>360 view</source>
        <translation>Vue 360°</translation>
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
        <translation>Activé</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Actif</translation>
    </message>
    <message>
        <source>Advance warning</source>
        <translation>Alerte préalable</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>Amplifier</source>
        <translation>Amplificateur</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>Angled</source>
        <translation>En épi</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Application</translation>
    </message>
    <message>
        <source>Application none</source>
        <translation>Aucune application</translation>
    </message>
    <message>
        <source>Arrows</source>
        <translation>Flèches</translation>
    </message>
    <message>
        <source>Assist</source>
        <translation>Assistance</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Auto compressor</source>
        <translation>Compresseur auto</translation>
    </message>
    <message>
        <source>Auto heating driver</source>
        <translation>Chauffage auto conducteur</translation>
    </message>
    <message>
        <source>Auto heating passenger</source>
        <translation>Chauffage auto passager</translation>
    </message>
    <message>
        <source>Auto lock</source>
        <translation>Verrouillage auto</translation>
    </message>
    <message>
        <source>Auto recirculation</source>
        <translation>Recyclage auto</translation>
    </message>
    <message>
        <source>Auto unlock</source>
        <translation>Déverrouillage auto</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Average consumption</source>
        <translation>Consommation moyenne</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>Vitesse moyenne</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Backlight</source>
        <translation>Rétroéclairage</translation>
    </message>
    <message>
        <source>Backwards</source>
        <translation>À rebours</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Balance</translation>
    </message>
    <message>
        <source>Band</source>
        <translation>Bande</translation>
    </message>
    <message>
        <source>Bass</source>
        <translation>Graves</translation>
    </message>
    <message>
        <source>Beyond</source>
        <translation>Au-delà de la fin</translation>
    </message>
    <message>
        <source>Blind spot</source>
        <translation>Angle mort</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Bonnet</source>
        <translation>Capot</translation>
    </message>
    <message>
        <source>Boot</source>
        <translation>Coffre</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Boîtier</translation>
    </message>
    <message>
        <source>Brake</source>
        <translation>Frein</translation>
    </message>
    <message>
        <source>Brightest</source>
        <translation>Le plus clair</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>À la main</translation>
    </message>
    <message>
        <source>Cabin</source>
        <translation>Habitacle</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Appeler</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Caméra</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Car type</source>
        <translation>Type de véhicule</translation>
    </message>
    <message>
        <source>Centerpoint</source>
        <translation>Centerpoint</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Contrôler</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Chinois</translation>
    </message>
    <message>
        <source>Circulation</source>
        <translation>Circulation d’air</translation>
    </message>
    <message>
        <source>Clean</source>
        <translation>Purifier</translation>
    </message>
    <message>
        <source>Climate</source>
        <translation>Climatisation</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Près</translation>
    </message>
    <message>
        <source>Codes</source>
        <translation>Codes</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Comfort</source>
        <translation>Confort</translation>
    </message>
    <message>
        <source>Comfort curve</source>
        <translation>Courbe de confort</translation>
    </message>
    <message>
        <source>Coming home</source>
        <translation>Coming Home</translation>
    </message>
    <message>
        <source>Confirmation</source>
        <translation>Confirmation</translation>
    </message>
    <message>
        <source>Consumers</source>
        <translation>Consommateurs</translation>
    </message>
    <message>
        <source>Consumption</source>
        <translation>Consommation</translation>
    </message>
    <message>
        <source>Convenience</source>
        <translation>Confort</translation>
    </message>
    <message>
        <source>Cursor down</source>
        <translation>Curseur bas</translation>
    </message>
    <message>
        <source>Cursor left</source>
        <translation>Curseur gauche</translation>
    </message>
    <message>
        <source>Cursor right</source>
        <translation>Curseur droite</translation>
    </message>
    <message>
        <source>Cursor up</source>
        <translation>Curseur haut</translation>
    </message>
    <message>
        <source>Darkest</source>
        <translation>Le plus sombre</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Jours</translation>
    </message>
    <message>
        <source>Daytime</source>
        <translation>Feux de jour</translation>
    </message>
    <message>
        <source>Defrost</source>
        <translation>Dégivrage</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Degrés</translation>
    </message>
    <message>
        <source>Digit</source>
        <translation>Chiffre</translation>
    </message>
    <message>
        <source>Dipped</source>
        <translation>Croisement</translation>
    </message>
    <message>
        <source>Dipped and fog</source>
        <translation>Croisement et antibrouillard</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>Distance warning</source>
        <translation>Alerte de distance</translation>
    </message>
    <message>
        <source>Doors</source>
        <translation>Portes</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Down left</source>
        <translation>Bas gauche</translation>
    </message>
    <message>
        <source>Down right</source>
        <translation>Bas droite</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Conduite</translation>
    </message>
    <message>
        <source>Drive program</source>
        <translation>Programme de conduite</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>Conducteur</translation>
    </message>
    <message>
        <source>Driver alert</source>
        <translation>Détecteur de fatigue</translation>
    </message>
    <message>
        <source>Driver stage</source>
        <translation>Scène conducteur</translation>
    </message>
    <message>
        <source>Dual</source>
        <translation>Bizone</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dynamique</translation>
    </message>
    <message>
        <source>ESC</source>
        <translation>ESC</translation>
    </message>
    <message>
        <source>Early</source>
        <translation>Tôt</translation>
    </message>
    <message>
        <source>Eco</source>
        <translation>Eco</translation>
    </message>
    <message>
        <source>Eco tips</source>
        <translation>Conseils éco</translation>
    </message>
    <message>
        <source>Eject</source>
        <translation>Éjecter</translation>
    </message>
    <message>
        <source>Emergency</source>
        <translation>Urgence</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Moteur</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Anglais</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Valider</translation>
    </message>
    <message>
        <source>Factory</source>
        <translation>Affichage d’origine</translation>
    </message>
    <message>
        <source>Fader</source>
        <translation>Fader</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>Ventilateur</translation>
    </message>
    <message>
        <source>Fan auto</source>
        <translation>Ventilateur auto</translation>
    </message>
    <message>
        <source>Far</source>
        <translation>Loin</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Rapide</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>Défaut</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Micrologiciel</translation>
    </message>
    <message>
        <source>First forward</source>
        <translation>Première marche avant</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Rabattre</translation>
    </message>
    <message>
        <source>Follow me</source>
        <translation>Éclairage d’accompagnement</translation>
    </message>
    <message>
        <source>Footwell</source>
        <translation>Plancher</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avance rapide</translation>
    </message>
    <message>
        <source>Forward gear</source>
        <translation>Marche avant</translation>
    </message>
    <message>
        <source>Fresh air cycle</source>
        <translation>Cycle d’air frais</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>Front and around</source>
        <translation>Avant et alentours</translation>
    </message>
    <message>
        <source>Front and left</source>
        <translation>Avant et gauche</translation>
    </message>
    <message>
        <source>Front and right</source>
        <translation>Avant et droite</translation>
    </message>
    <message>
        <source>Front left</source>
        <translation>Avant gauche</translation>
    </message>
    <message>
        <source>Front right</source>
        <translation>Avant droite</translation>
    </message>
    <message>
        <source>Front service</source>
        <translation>Entretien avant</translation>
    </message>
    <message>
        <source>Front tone</source>
        <translation>Tonalité avant</translation>
    </message>
    <message>
        <source>Front volume</source>
        <translation>Volume avant</translation>
    </message>
    <message>
        <source>Front window</source>
        <translation>Vitre avant</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Plein</translation>
    </message>
    <message>
        <source>Function call</source>
        <translation>Fonction appel</translation>
    </message>
    <message>
        <source>Function forward</source>
        <translation>Fonction avance</translation>
    </message>
    <message>
        <source>Function hangup</source>
        <translation>Fonction raccrocher</translation>
    </message>
    <message>
        <source>Function next</source>
        <translation>Fonction suivant</translation>
    </message>
    <message>
        <source>Function previous</source>
        <translation>Fonction précédent</translation>
    </message>
    <message>
        <source>Function rewind</source>
        <translation>Fonction retour</translation>
    </message>
    <message>
        <source>Gear</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>Hand</source>
        <translation>Frein à main</translation>
    </message>
    <message>
        <source>Hang up</source>
        <translation>Raccrocher</translation>
    </message>
    <message>
        <source>Head</source>
        <translation>Pavillon</translation>
    </message>
    <message>
        <source>Heating driver</source>
        <translation>Chauffage conducteur</translation>
    </message>
    <message>
        <source>Heating passenger</source>
        <translation>Chauffage passager</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Élevé</translation>
    </message>
    <message>
        <source>Hill descent</source>
        <translation>Descente</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Accueil</translation>
    </message>
    <message>
        <source>Illumination</source>
        <translation>Éclairage</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Recyclage</translation>
    </message>
    <message>
        <source>Indicator</source>
        <translation>Clignotant</translation>
    </message>
    <message>
        <source>Indicator volume</source>
        <translation>Volume des clignotants</translation>
    </message>
    <message>
        <source>Individual</source>
        <translation>Individual</translation>
    </message>
    <message>
        <source>Inspection</source>
        <translation>Révision</translation>
    </message>
    <message>
        <source>Instruments</source>
        <translation>Instruments</translation>
    </message>
    <message>
        <source>Introduction</source>
        <translation>Introduction</translation>
    </message>
    <message>
        <source>Ioniser</source>
        <translation>Ioniseur</translation>
    </message>
    <message>
        <source>Ioniser at start</source>
        <translation>Ioniseur au démarrage</translation>
    </message>
    <message>
        <source>Ioniser mode</source>
        <translation>Mode d’ioniseur</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Touche</translation>
    </message>
    <message>
        <source>Key form</source>
        <translation>Format de touche</translation>
    </message>
    <message>
        <source>Key position</source>
        <translation>Siège par clé</translation>
    </message>
    <message>
        <source>Known</source>
        <translation>Connu</translation>
    </message>
    <message>
        <source>Lane</source>
        <translation>Voie</translation>
    </message>
    <message>
        <source>Lane change</source>
        <translation>Changement de voie</translation>
    </message>
    <message>
        <source>Lane departure</source>
        <translation>Sortie de voie</translation>
    </message>
    <message>
        <source>Lane keeping</source>
        <translation>Maintien de voie</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Last distance</source>
        <translation>Dernière distance</translation>
    </message>
    <message>
        <source>Late</source>
        <translation>Tard</translation>
    </message>
    <message>
        <source>Leaving home</source>
        <translation>Leaving Home</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Left indicator</source>
        <translation>Clignotant gauche</translation>
    </message>
    <message>
        <source>Left mirror</source>
        <translation>Rétroviseur gauche</translation>
    </message>
    <message>
        <source>Left step</source>
        <translation>Niveau gauche</translation>
    </message>
    <message>
        <source>Lids</source>
        <translation>Ouvrants</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Éclairage</translation>
    </message>
    <message>
        <source>Lighting</source>
        <translation>Éclairage</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Charge</translation>
    </message>
    <message>
        <source>Lock sound</source>
        <translation>Son de verrouillage</translation>
    </message>
    <message>
        <source>Long</source>
        <translation>Long</translation>
    </message>
    <message>
        <source>Long term</source>
        <translation>Longue durée</translation>
    </message>
    <message>
        <source>Loss</source>
        <translation>Perte</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Lower reversing</source>
        <translation>Abaisser en marche arrière</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Carte</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Médias</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Moyen</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Milieu</translation>
    </message>
    <message>
        <source>Mirrors</source>
        <translation>Rétroviseurs</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>Motorway</source>
        <translation>Autoroute</translation>
    </message>
    <message>
        <source>Moving object</source>
        <translation>Objets mobiles</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Muet</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Night brightness</source>
        <translation>Luminosité de nuit</translation>
    </message>
    <message>
        <source>No signal</source>
        <translation>Pas de signal</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Offroad</source>
        <translation>Offroad</translation>
    </message>
    <message>
        <source>Offroad climate</source>
        <translation>Offroad : climatisation</translation>
    </message>
    <message>
        <source>Offroad individual</source>
        <translation>Offroad Individual</translation>
    </message>
    <message>
        <source>Oil</source>
        <translation>Huile</translation>
    </message>
    <message>
        <source>Oil temperature</source>
        <translation>Température d’huile</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>Ouverture</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Air extérieur</translation>
    </message>
    <message>
        <source>Outside</source>
        <translation>Extérieur</translation>
    </message>
    <message>
        <source>PA</source>
        <translation>PA</translation>
    </message>
    <message>
        <source>Parallel</source>
        <translation>En créneau</translation>
    </message>
    <message>
        <source>Parallel parking</source>
        <translation>Stationnement en créneau</translation>
    </message>
    <message>
        <source>Parking</source>
        <translation>Stationnement</translation>
    </message>
    <message>
        <source>Parking picture</source>
        <translation>Image de stationnement</translation>
    </message>
    <message>
        <source>Perpendicular</source>
        <translation>En bataille</translation>
    </message>
    <message>
        <source>Perpendicular parking</source>
        <translation>Stationnement en bataille</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Téléphone</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Marche/arrêt</translation>
    </message>
    <message>
        <source>Power time</source>
        <translation>Durée de marche</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Pression</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Radar</source>
        <translation>Radar</translation>
    </message>
    <message>
        <source>Radar maxima</source>
        <translation>Maximums du radar</translation>
    </message>
    <message>
        <source>Radar sound</source>
        <translation>Son du radar</translation>
    </message>
    <message>
        <source>Rain</source>
        <translation>Pluie</translation>
    </message>
    <message>
        <source>Rain wiping</source>
        <translation>Balayage pluie</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Autonomie</translation>
    </message>
    <message>
        <source>Rear</source>
        <translation>Arrière</translation>
    </message>
    <message>
        <source>Rear and around</source>
        <translation>Arrière et alentours</translation>
    </message>
    <message>
        <source>Rear and left</source>
        <translation>Arrière et gauche</translation>
    </message>
    <message>
        <source>Rear and right</source>
        <translation>Arrière et droite</translation>
    </message>
    <message>
        <source>Rear defrost</source>
        <translation>Lunette arrière chauffante</translation>
    </message>
    <message>
        <source>Rear left</source>
        <translation>Arrière gauche</translation>
    </message>
    <message>
        <source>Rear reversing</source>
        <translation>Arrière en marche arrière</translation>
    </message>
    <message>
        <source>Rear right</source>
        <translation>Arrière droite</translation>
    </message>
    <message>
        <source>Rear seat</source>
        <translation>Siège arrière</translation>
    </message>
    <message>
        <source>Rear tone</source>
        <translation>Tonalité arrière</translation>
    </message>
    <message>
        <source>Rear volume</source>
        <translation>Volume arrière</translation>
    </message>
    <message>
        <source>Rear window</source>
        <translation>Vitre arrière</translation>
    </message>
    <message>
        <source>Rear wiping</source>
        <translation>Balayage arrière</translation>
    </message>
    <message>
        <source>Reasons</source>
        <translation>Raisons</translation>
    </message>
    <message>
        <source>Relax</source>
        <translation>Détente</translation>
    </message>
    <message>
        <source>Remote</source>
        <translation>Télécommande</translation>
    </message>
    <message>
        <source>Remote key</source>
        <translation>Clé à télécommande</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Marche arrière</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Retour rapide</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Right indicator</source>
        <translation>Clignotant droit</translation>
    </message>
    <message>
        <source>Right mirror</source>
        <translation>Rétroviseur droit</translation>
    </message>
    <message>
        <source>Right step</source>
        <translation>Niveau droit</translation>
    </message>
    <message>
        <source>Roller down</source>
        <translation>Molette bas</translation>
    </message>
    <message>
        <source>Roller up</source>
        <translation>Molette haut</translation>
    </message>
    <message>
        <source>SOS</source>
        <translation>SOS</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Échelle</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Recherche</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Écran</translation>
    </message>
    <message>
        <source>Seat</source>
        <translation>Siège</translation>
    </message>
    <message>
        <source>Sensor</source>
        <translation>Capteur</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Entretien</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Court</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Side</source>
        <translation>Côté</translation>
    </message>
    <message>
        <source>Since refuel</source>
        <translation>Depuis le plein</translation>
    </message>
    <message>
        <source>Since start</source>
        <translation>Depuis le départ</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>Une seule</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Lent</translation>
    </message>
    <message>
        <source>Smart entry</source>
        <translation>Accès mains libres</translation>
    </message>
    <message>
        <source>Snow</source>
        <translation>Neige</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>Doux</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Speed limit</source>
        <translation>Limite de vitesse</translation>
    </message>
    <message>
        <source>Speed lock</source>
        <translation>Verrouillage en roulant</translation>
    </message>
    <message>
        <source>Speed volume</source>
        <translation>Volume selon vitesse</translation>
    </message>
    <message>
        <source>Speed warning</source>
        <translation>Alerte de vitesse</translation>
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
        <translation>Animation de démarrage</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Heure de départ</translation>
    </message>
    <message>
        <source>Start-stop</source>
        <translation>Start-stop</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>Démarre</translation>
    </message>
    <message>
        <source>Steering</source>
        <translation>Direction</translation>
    </message>
    <message>
        <source>Steering mode</source>
        <translation>Mode de direction</translation>
    </message>
    <message>
        <source>Steering wheel</source>
        <translation>Volant</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Niveaux</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>Sunroof</source>
        <translation>Toit ouvrant</translation>
    </message>
    <message>
        <source>Surround</source>
        <translation>Surround</translation>
    </message>
    <message>
        <source>Switch on</source>
        <translation>Allumage</translation>
    </message>
    <message>
        <source>Synchronous</source>
        <translation>Synchronisé</translation>
    </message>
    <message>
        <source>Tailgate</source>
        <translation>Hayon</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>To face</source>
        <translation>Vers le visage</translation>
    </message>
    <message>
        <source>To feet</source>
        <translation>Vers les pieds</translation>
    </message>
    <message>
        <source>To window</source>
        <translation>Vers le pare-brise</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Trafic</translation>
    </message>
    <message>
        <source>Treble</source>
        <translation>Aigus</translation>
    </message>
    <message>
        <source>Trip</source>
        <translation>Trajet</translation>
    </message>
    <message>
        <source>Tune knob left</source>
        <translation>Molette de réglage gauche</translation>
    </message>
    <message>
        <source>Tune knob right</source>
        <translation>Molette de réglage droite</translation>
    </message>
    <message>
        <source>Turning fog</source>
        <translation>Antibrouillard en virage</translation>
    </message>
    <message>
        <source>Twice</source>
        <translation>Deux fois</translation>
    </message>
    <message>
        <source>Tyres</source>
        <translation>Pneus</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Unités</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Déverrouiller</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Up left</source>
        <translation>Haut gauche</translation>
    </message>
    <message>
        <source>Up right</source>
        <translation>Haut droite</translation>
    </message>
    <message>
        <source>Vehicle number</source>
        <translation>Numéro de châssis</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Very close</source>
        <translation>Très près</translation>
    </message>
    <message>
        <source>Very far</source>
        <translation>Très loin</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Voix</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>Volume −</translation>
    </message>
    <message>
        <source>Volume knob down</source>
        <translation>Bouton volume −</translation>
    </message>
    <message>
        <source>Volume knob up</source>
        <translation>Bouton volume +</translation>
    </message>
    <message>
        <source>Volume up</source>
        <translation>Volume +</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Alerte</translation>
    </message>
    <message>
        <source>Warning volume</source>
        <translation>Volume des alertes</translation>
    </message>
    <message>
        <source>Way</source>
        <translation>Façon</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Accueil lumineux</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanc</translation>
    </message>
    <message>
        <source>Window and roof</source>
        <translation>Vitres et toit</translation>
    </message>
    <message>
        <source>Wiper position</source>
        <translation>Position des essuie-glaces</translation>
    </message>
    <message>
        <source>Wipers</source>
        <translation>Essuie-glaces</translation>
    </message>
    <message>
        <source>Wish AM</source>
        <translation>Demande AM</translation>
    </message>
    <message>
        <source>Wish AUX</source>
        <translation>Demande AUX</translation>
    </message>
    <message>
        <source>Wish Bluetooth</source>
        <translation>Demande Bluetooth</translation>
    </message>
    <message>
        <source>Wish CD</source>
        <translation>Demande CD</translation>
    </message>
    <message>
        <source>Wish FM</source>
        <translation>Demande FM</translation>
    </message>
    <message>
        <source>Wish USB</source>
        <translation>Demande USB</translation>
    </message>
    <message>
        <source>Wish answer</source>
        <translation>Demande décrocher</translation>
    </message>
    <message>
        <source>Wish refuse</source>
        <translation>Demande refuser</translation>
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

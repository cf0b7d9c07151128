<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>CanBus_Raise_Volkswagen</name>
    <message>
        <source>Car infos</source>
        <translation>Infos véhicule</translation>
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
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>VWFunctionSetting</name>
    <message>
        <source>Factory settings</source>
        <translation>Réglages d’usine</translation>
    </message>
    <message>
        <source>Are you sure restore</source>
        <translation>Rétablir les réglages d’usine pour</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>?</translation>
    </message>
    <message>
        <source>Driving data</source>
        <translation>Données de conduite</translation>
    </message>
    <message>
        <source>Are you sure </source>
        <translation>Confirmer&#xa0;: </translation>
    </message>
    <message>
        <source>The car has not told its value</source>
        <translation>Le véhicule n’a pas encore transmis la valeur</translation>
    </message>
    <message>
        <source>%1 %2 %3 ?</source>
        <translation>%1 «&#xa0;%2&#xa0;» %3</translation>
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
        <translation>Infos véhicule</translation>
    </message>
    <message>
        <source>Driving data</source>
        <translation>Conduite</translation>
    </message>
    <message>
        <source>Tire pressure</source>
        <translation>Pneus</translation>
    </message>
    <message>
        <source>Car status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Autonomie</translation>
    </message>
    <message>
        <source>Consumption</source>
        <translation>Consommation</translation>
    </message>
    <message>
        <source>Avg. consumption</source>
        <translation>Conso. moyenne</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>Avg. speed</source>
        <translation>Vitesse moy.</translation>
    </message>
    <message>
        <source>Tire pressure status</source>
        <translation>Pression des pneus</translation>
    </message>
    <message>
        <source>Since start</source>
        <translation>Depuis le départ</translation>
    </message>
    <message>
        <source>Since refueling</source>
        <translation>Depuis le plein</translation>
    </message>
    <message>
        <source>Long-term</source>
        <translation>Longue durée</translation>
    </message>
    <message>
        <source>Normal pressure</source>
        <translation>Pression normale</translation>
    </message>
    <message>
        <source>Low pressure</source>
        <translation>Pression basse</translation>
    </message>
    <message>
        <source>Hight pressure</source>
        <translation>Pression élevée</translation>
    </message>
    <message>
        <source>Tire pressure is normal</source>
        <translation>La pression des pneus est normale</translation>
    </message>
    <message>
        <source>Please check the tire pressure</source>
        <translation>Contrôlez la pression des pneus</translation>
    </message>
    <message>
        <source>Tire pressure is too low</source>
        <translation>Pression des pneus trop basse</translation>
    </message>
    <message>
        <source>Tire pressure loss</source>
        <translation>Perte de pression des pneus</translation>
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
        <translation>Entretien dépassé</translation>
    </message>
    <message>
        <source>Time (h:min)</source>
        <translation>Durée (h:min)</translation>
    </message>
    <message>
        <source>not in this car</source>
        <translation>non disponible</translation>
    </message>
</context>
<context>
    <name>Vw</name>
    <message>
        <source>No entries available</source>
        <translation>Aucune entrée</translation>
    </message>
    <message>
        <source>overdue by</source>
        <translation>dépassé de</translation>
    </message>
    <message>
        <source>Start-stop system is deactivated</source>
        <translation>Le système start-stop est désactivé</translation>
    </message>
    <message>
        <source>Start-stop system is activated</source>
        <translation>Le système start-stop est activé</translation>
    </message>
    <message>
        <source>Report code</source>
        <translation>Code du message</translation>
    </message>
    <message>
        <source>days</source>
        <translation>jours</translation>
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
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Activated</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>ESC sport</source>
        <translation>ESC Sport</translation>
    </message>
    <message>
        <source>Esc system</source>
        <translation>Système ESC</translation>
    </message>
    <message>
        <source>Tyres</source>
        <translation>Pneus</translation>
    </message>
    <message>
        <source>Driver assistance</source>
        <translation>Aide à la conduite</translation>
    </message>
    <message>
        <source>Parking and manoeuvring</source>
        <translation>Stationnement et manœuvres</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Éclairage</translation>
    </message>
    <message>
        <source>Mirrors and wipers</source>
        <translation>Rétroviseurs et essuie-glaces</translation>
    </message>
    <message>
        <source>Opening and closing</source>
        <translation>Ouverture et fermeture</translation>
    </message>
    <message>
        <source>Multifunction display</source>
        <translation>Affichage multifonction</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Entretien</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Unités</translation>
    </message>
    <message>
        <source>Seat driver profile</source>
        <translation>Siège et profil conducteur</translation>
    </message>
    <message>
        <source>Vehice status Start-stop</source>
        <translation>État du véhicule&#xa0;: start-stop</translation>
    </message>
    <message>
        <source>Vehice status reports</source>
        <translation>État du véhicule&#xa0;: messages</translation>
    </message>
    <message>
        <source>Convenience consumer</source>
        <translation>Consommateurs de confort</translation>
    </message>
    <message>
        <source>Factory settings</source>
        <translation>Réglages d’usine</translation>
    </message>
    <message>
        <source>km/h</source>
        <translation>km/h</translation>
    </message>
    <message>
        <source>Comfortable</source>
        <translation>Confort</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Full load</source>
        <translation>Pleine charge</translation>
    </message>
    <message>
        <source>Speed warning</source>
        <translation>Alerte de vitesse</translation>
    </message>
    <message>
        <source>Warning speed</source>
        <translation>Vitesse d’alerte</translation>
    </message>
    <message>
        <source>TPMS SET</source>
        <translation>Mémoriser la pression des pneus</translation>
    </message>
    <message>
        <source>Direct tyres pressure monitoring</source>
        <translation>Contrôle direct de la pression des pneus</translation>
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
        <translation>Très près</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Près</translation>
    </message>
    <message>
        <source>Far</source>
        <translation>Loin</translation>
    </message>
    <message>
        <source>Very far</source>
        <translation>Très loin</translation>
    </message>
    <message>
        <source>Lane assist</source>
        <translation>Assistant de voie</translation>
    </message>
    <message>
        <source>Lane keeping assist system</source>
        <translation>Assistant de maintien de voie</translation>
    </message>
    <message>
        <source>Driver alert system</source>
        <translation>Détecteur de fatigue</translation>
    </message>
    <message>
        <source>Front assist</source>
        <translation>Front Assist</translation>
    </message>
    <message>
        <source>Advance warning</source>
        <translation>Alerte préalable</translation>
    </message>
    <message>
        <source>Display distance warning</source>
        <translation>Afficher l’alerte de distance</translation>
    </message>
    <message>
        <source>Adaptive cruise control</source>
        <translation>Régulateur de vitesse adaptatif</translation>
    </message>
    <message>
        <source>Last distance selected</source>
        <translation>Dernière distance choisie</translation>
    </message>
    <message>
        <source>Drive program</source>
        <translation>Programme de conduite</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>Hill Descent Control</source>
        <translation>Assistant de descente</translation>
    </message>
    <message>
        <source>Activa automatically</source>
        <translation>Activer automatiquement</translation>
    </message>
    <message>
        <source>Parking brake function</source>
        <translation>Fonction de freinage en manœuvre</translation>
    </message>
    <message>
        <source>Front volume</source>
        <translation>Volume avant</translation>
    </message>
    <message>
        <source>Front tone setting</source>
        <translation>Tonalité avant</translation>
    </message>
    <message>
        <source>Rear volume</source>
        <translation>Volume arrière</translation>
    </message>
    <message>
        <source>Rear tone setting</source>
        <translation>Tonalité arrière</translation>
    </message>
    <message>
        <source>Radar sound</source>
        <translation>Son du radar</translation>
    </message>
    <message>
        <source>Early</source>
        <translation>Tôt</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Moyen</translation>
    </message>
    <message>
        <source>Late</source>
        <translation>Tard</translation>
    </message>
    <message>
        <source>Right traffic</source>
        <translation>Circulation à droite</translation>
    </message>
    <message>
        <source>Left traffic</source>
        <translation>Circulation à gauche</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanc</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
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
        <translation>Moment d’allumage</translation>
    </message>
    <message>
        <source>Automatic headlight control in rain</source>
        <translation>Feux automatiques par temps de pluie</translation>
    </message>
    <message>
        <source>Lane change flash</source>
        <translation>Clignotants confort</translation>
    </message>
    <message>
        <source>Instrument/switch lighting</source>
        <translation>Éclairage instruments/commandes</translation>
    </message>
    <message>
        <source>Coming home function</source>
        <translation>Fonction Coming Home</translation>
    </message>
    <message>
        <source>Leaving home function</source>
        <translation>Fonction Leaving Home</translation>
    </message>
    <message>
        <source>Travel mode</source>
        <translation>Mode voyage</translation>
    </message>
    <message>
        <source>Door ambient light</source>
        <translation>Éclairage d’ambiance des portes</translation>
    </message>
    <message>
        <source>Foowell light</source>
        <translation>Éclairage du plancher</translation>
    </message>
    <message>
        <source>Head light</source>
        <translation>Éclairage du pavillon</translation>
    </message>
    <message>
        <source>Front light</source>
        <translation>Éclairage avant</translation>
    </message>
    <message>
        <source>All light</source>
        <translation>Tout l’éclairage</translation>
    </message>
    <message>
        <source>Motorway light</source>
        <translation>Éclairage autoroute</translation>
    </message>
    <message>
        <source>Dynamic light assist</source>
        <translation>Éclairage adaptatif dynamique</translation>
    </message>
    <message>
        <source>Interior environment lighting color</source>
        <translation>Couleur de l’éclairage d’ambiance</translation>
    </message>
    <message>
        <source>Headlight illumination distance</source>
        <translation>Portée des phares</translation>
    </message>
    <message>
        <source>Daytime running lights</source>
        <translation>Feux de jour</translation>
    </message>
    <message>
        <source>Synchronous adjustment</source>
        <translation>Réglage synchronisé</translation>
    </message>
    <message>
        <source>Lower while reversing</source>
        <translation>Abaisser en marche arrière</translation>
    </message>
    <message>
        <source>Automatic wiping in rain</source>
        <translation>Balayage automatique par temps de pluie</translation>
    </message>
    <message>
        <source>Rear window wiping in reverse gear</source>
        <translation>Balayage arrière en marche arrière</translation>
    </message>
    <message>
        <source>Fold away after parking</source>
        <translation>Rabattre après stationnement</translation>
    </message>
    <message>
        <source>Driver window</source>
        <translation>Vitre conducteur</translation>
    </message>
    <message>
        <source>All window</source>
        <translation>Toutes les vitres</translation>
    </message>
    <message>
        <source>Vehicle side</source>
        <translation>Côté du véhicule</translation>
    </message>
    <message>
        <source>Single door</source>
        <translation>Une seule porte</translation>
    </message>
    <message>
        <source>All doors</source>
        <translation>Toutes les portes</translation>
    </message>
    <message>
        <source>Convenience opening</source>
        <translation>Ouverture confort</translation>
    </message>
    <message>
        <source>Door unlocking</source>
        <translation>Déverrouillage des portes</translation>
    </message>
    <message>
        <source>Automatic locking</source>
        <translation>Verrouillage automatique</translation>
    </message>
    <message>
        <source>Inductive rear tailgate</source>
        <translation>Hayon mains libres</translation>
    </message>
    <message>
        <source>Acoustic confirmation</source>
        <translation>Confirmation sonore</translation>
    </message>
    <message>
        <source>Front window</source>
        <translation>Vitre avant</translation>
    </message>
    <message>
        <source>Rear window</source>
        <translation>Vitre arrière</translation>
    </message>
    <message>
        <source>Sliding sunroof</source>
        <translation>Toit ouvrant</translation>
    </message>
    <message>
        <source>Current consumption</source>
        <translation>Consommation instantanée</translation>
    </message>
    <message>
        <source>Average consumption</source>
        <translation>Consommation moyenne</translation>
    </message>
    <message>
        <source>Convenience consumption</source>
        <translation>Consommation de confort</translation>
    </message>
    <message>
        <source>Eco tips</source>
        <translation>Conseils éco</translation>
    </message>
    <message>
        <source>Travelling time</source>
        <translation>Durée du trajet</translation>
    </message>
    <message>
        <source>Distance travelled</source>
        <translation>Distance parcourue</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>Vitesse moyenne</translation>
    </message>
    <message>
        <source>Digital speed display</source>
        <translation>Affichage numérique de la vitesse</translation>
    </message>
    <message>
        <source>Oil temperature</source>
        <translation>Température d’huile</translation>
    </message>
    <message>
        <source>Vehicle NO.</source>
        <translation>Numéro de châssis</translation>
    </message>
    <message>
        <source>Inspection days</source>
        <translation>Révision (jours)</translation>
    </message>
    <message>
        <source>Inspection distance</source>
        <translation>Révision (distance)</translation>
    </message>
    <message>
        <source>Oil change service days</source>
        <translation>Vidange (jours)</translation>
    </message>
    <message>
        <source>Oil change service distance</source>
        <translation>Vidange (distance)</translation>
    </message>
    <message>
        <source>Wiper in maintenance position</source>
        <translation>Essuie-glaces en position d’entretien</translation>
    </message>
    <message>
        <source>Reset &quot;Since start&quot;</source>
        <translation>Remettre à zéro «&#xa0;Depuis le départ&#xa0;»</translation>
    </message>
    <message>
        <source>Reset &quot;Long-term&quot;</source>
        <translation>Remettre à zéro «&#xa0;Longue durée&#xa0;»</translation>
    </message>
    <message>
        <source>Reset maintenance cycle</source>
        <translation>Remettre à zéro l’intervalle d’entretien</translation>
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
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Consumption</source>
        <translation>Consommation</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Pression</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Tous les réglages</translation>
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
        <translation>Neige</translation>
    </message>
    <message>
        <source>Off-road</source>
        <translation>Offroad</translation>
    </message>
    <message>
        <source>Off-road individual</source>
        <translation>Offroad Individual</translation>
    </message>
    <message>
        <source>Remote key activated</source>
        <translation>Clé à télécommande activée</translation>
    </message>
    <message>
        <source>Remote key memory matching</source>
        <translation>Mémoire associée à la clé</translation>
    </message>
    <message>
        <source>Driving mode</source>
        <translation>Mode de conduite</translation>
    </message>
    <message>
        <source>Steering</source>
        <translation>Direction</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Moteur</translation>
    </message>
    <message>
        <source>Climate</source>
        <translation>Climatisation</translation>
    </message>
    <message>
        <source>Front lighting</source>
        <translation>Éclairage avant</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Remise à zéro</translation>
    </message>
    <message>
        <source>Car Setting</source>
        <translation>Réglages du véhicule</translation>
    </message>
    <message>
        <source>Vehice Start-stop</source>
        <translation>Start-stop du véhicule</translation>
    </message>
    <message>
        <source>Vehice reports</source>
        <translation>Messages du véhicule</translation>
    </message>
    <message>
        <source>Trailer mode</source>
        <translation>Mode remorque</translation>
    </message>
    <message>
        <source>Windscreen could become fogged</source>
        <translation>Le pare-brise pourrait s’embuer</translation>
    </message>
    <message>
        <source>Operating temperature not maintained</source>
        <translation>Température de service non atteinte</translation>
    </message>
    <message>
        <source>No driver detected</source>
        <translation>Aucun conducteur détecté</translation>
    </message>
    <message>
        <source>Gearbox requires engine to be running</source>
        <translation>La boîte de vitesses exige que le moteur tourne</translation>
    </message>
    <message>
        <source>Power consumption is high</source>
        <translation>Consommation électrique élevée</translation>
    </message>
    <message>
        <source>Starting start-stop system</source>
        <translation>Démarrage du système start-stop</translation>
    </message>
    <message>
        <source>Engine must be running</source>
        <translation>Le moteur doit tourner</translation>
    </message>
    <message>
        <source>Gradient too steep</source>
        <translation>Pente trop forte</translation>
    </message>
    <message>
        <source>Start-stop system is currently not  available</source>
        <translation>Le système start-stop est momentanément indisponible</translation>
    </message>
    <message>
        <source>Emergency brake function intervention</source>
        <translation>Intervention du freinage d’urgence</translation>
    </message>
    <message>
        <source>Brake requires engine to be running</source>
        <translation>Le frein exige que le moteur tourne</translation>
    </message>
    <message>
        <source>Power consumption is hight</source>
        <translation>Consommation électrique élevée</translation>
    </message>
    <message>
        <source>Air conditioning requires engine to be running</source>
        <translation>Le climatiseur exige que le moteur tourne</translation>
    </message>
    <message>
        <source>Steering angle too great</source>
        <translation>Braquage trop important</translation>
    </message>
    <message>
        <source>Manoeuvering mode</source>
        <translation>Mode manœuvre</translation>
    </message>
    <message>
        <source>Defrost function is switched on</source>
        <translation>Le dégivrage est activé</translation>
    </message>
    <message>
        <source>Driver seatbelt not fastened</source>
        <translation>Ceinture conducteur non bouclée</translation>
    </message>
    <message>
        <source>Driver door open</source>
        <translation>Porte conducteur ouverte</translation>
    </message>
    <message>
        <source>Accelerator is depressed</source>
        <translation>Accélérateur enfoncé</translation>
    </message>
    <message>
        <source>Wndscreen heating is switched on</source>
        <translation>Le pare-brise chauffant est activé</translation>
    </message>
    <message>
        <source>Maximum air conditioning requires engine to be running</source>
        <translation>La climatisation maximale exige que le moteur tourne</translation>
    </message>
    <message>
        <source>Bonnet has been opened</source>
        <translation>Le capot a été ouvert</translation>
    </message>
    <message>
        <source>Engine stop currently not possible</source>
        <translation>Arrêt du moteur momentanément impossible</translation>
    </message>
    <message>
        <source>Off-road mode is activated</source>
        <translation>Le mode Offroad est activé</translation>
    </message>
    <message>
        <source>System protection intervention Buttonlever activated too often</source>
        <translation>Protection du système&#xa0;: touche/levier actionnés trop souvent</translation>
    </message>
    <message>
        <source>Gear is engaged</source>
        <translation>Rapport engagé</translation>
    </message>
    <message>
        <source>Start-stop button pressed</source>
        <translation>Touche start-stop actionnée</translation>
    </message>
    <message>
        <source>ACC intervention</source>
        <translation>Intervention de l’ACC</translation>
    </message>
    <message>
        <source>Park Assist is activated</source>
        <translation>L’assistant de stationnement est activé</translation>
    </message>
    <message>
        <source>ESC is switched off</source>
        <translation>L’ESC est désactivé</translation>
    </message>
    <message>
        <source>Start-stop system requires engine to be running</source>
        <translation>Le système start-stop exige que le moteur tourne</translation>
    </message>
    <message>
        <source>Air conditioning</source>
        <translation>Climatiseur</translation>
    </message>
    <message>
        <source>Auxiliary heater</source>
        <translation>Chauffage d’appoint</translation>
    </message>
    <message>
        <source>Rear window heating</source>
        <translation>Lunette arrière chauffante</translation>
    </message>
    <message>
        <source>Left seat heating</source>
        <translation>Siège chauffant gauche</translation>
    </message>
    <message>
        <source>Right seat heating</source>
        <translation>Siège chauffant droit</translation>
    </message>
    <message>
        <source>Left seat ventilation</source>
        <translation>Ventilation siège gauche</translation>
    </message>
    <message>
        <source>Right seat ventilation</source>
        <translation>Ventilation siège droit</translation>
    </message>
    <message>
        <source>Left head area heating</source>
        <translation>Chauffage de nuque gauche</translation>
    </message>
    <message>
        <source>Right head area heating</source>
        <translation>Chauffage de nuque droit</translation>
    </message>
    <message>
        <source>Front fog light</source>
        <translation>Antibrouillards avant</translation>
    </message>
    <message>
        <source>Rear fog light</source>
        <translation>Antibrouillard arrière</translation>
    </message>
    <message>
        <source>Windscreen heating</source>
        <translation>Pare-brise chauffant</translation>
    </message>
    <message>
        <source>Steering whell heating</source>
        <translation>Volant chauffant</translation>
    </message>
    <message>
        <source>Mirror heating</source>
        <translation>Rétroviseurs chauffants</translation>
    </message>
    <message>
        <source>Rear seat heating</source>
        <translation>Sièges arrière chauffants</translation>
    </message>
    <message>
        <source>Rear seat ventilation</source>
        <translation>Ventilation des sièges arrière</translation>
    </message>
    <message>
        <source>Socket</source>
        <translation>Prise</translation>
    </message>
    <message>
        <source>Drink holder</source>
        <translation>Porte-boissons</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Envoyé</translation>
    </message>
    <message>
        <source>Waiting for the car</source>
        <translation>En attente du véhicule</translation>
    </message>
    <message>
        <source>Last report %1 min ago</source>
        <translation>Reçu il y a %1 min</translation>
    </message>
    <message>
        <source>Last report %1 h ago</source>
        <translation>Reçu il y a %1 h</translation>
    </message>
</context>
<context>
    <name>XinHangSettings</name>
    <message>
        <source>Original car</source>
        <translation>Véhicule d’origine</translation>
    </message>
    <message>
        <source>360</source>
        <translation>360</translation>
    </message>
    <message>
        <source>Add camera</source>
        <translation>Caméra supplémentaire</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>AfterMarket Camera</source>
        <translation>Caméra ajoutée</translation>
    </message>
    <message>
        <source>OE Camera</source>
        <translation>Caméra d’origine</translation>
    </message>
    <message>
        <source>AfterMarket 360</source>
        <translation>360° ajoutée</translation>
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
        <translation>Touche stationnement</translation>
    </message>
    <message>
        <source>Reverse State</source>
        <translation>État de marche arrière</translation>
    </message>
    <message>
        <source>Gear Position</source>
        <translation>Position du levier</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Horizontal and vertical</source>
        <translation>Horizontal et vertical</translation>
    </message>
    <message>
        <source>Reversing camera</source>
        <translation>Caméra de recul</translation>
    </message>
    <message>
        <source>Right camera</source>
        <translation>Caméra droite</translation>
    </message>
    <message>
        <source>Reversing track</source>
        <translation>Guides de recul</translation>
    </message>
    <message>
        <source>Reversing radar</source>
        <translation>Radar de recul</translation>
    </message>
    <message>
        <source>Car type</source>
        <translation>Type de véhicule</translation>
    </message>
    <message>
        <source>Display type</source>
        <translation>Type d’écran</translation>
    </message>
    <message>
        <source>Sound type</source>
        <translation>Type de son</translation>
    </message>
    <message>
        <source>Reverse camera</source>
        <translation>Type de caméra de recul</translation>
    </message>
    <message>
        <source>Starting front view</source>
        <translation>Vue avant au démarrage</translation>
    </message>
    <message>
        <source>Steering front view</source>
        <translation>Vue avant en braquant</translation>
    </message>
    <message>
        <source>Reversing front view</source>
        <translation>Vue avant après marche arrière</translation>
    </message>
    <message>
        <source>Dedicated right view</source>
        <translation>Vue droite dédiée</translation>
    </message>
    <message>
        <source>Front view after right view</source>
        <translation>Vue avant après vue droite</translation>
    </message>
    <message>
        <source>Rear video format</source>
        <translation>Format vidéo arrière</translation>
    </message>
    <message>
        <source>Reverse condition</source>
        <translation>Détection de marche arrière</translation>
    </message>
    <message>
        <source>Front view mirror</source>
        <translation>Miroir vue avant</translation>
    </message>
    <message>
        <source>Right view mirror</source>
        <translation>Miroir vue droite</translation>
    </message>
    <message>
        <source>Rear view mirror</source>
        <translation>Miroir vue arrière</translation>
    </message>
    <message>
        <source>Reverse track</source>
        <translation>Guides de recul</translation>
    </message>
    <message>
        <source>Reverse radar</source>
        <translation>Radar de recul</translation>
    </message>
</context>
<context>
    <name>XinHangSettingsWindow</name>
    <message>
        <source>Car Setting</source>
        <translation>Réglages du véhicule</translation>
    </message>
</context>
</TS>

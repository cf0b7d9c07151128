<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>CanBus_Raise_Volkswagen</name>
    <message>
        <source>Car infos</source>
        <translation>Información del vehículo</translation>
    </message>
</context>
<context>
    <name>SelectDialog</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>VWFunctionSetting</name>
    <message>
        <source>Factory settings</source>
        <translation>Ajustes de fábrica</translation>
    </message>
    <message>
        <source>Are you sure restore</source>
        <translation>¿Restablecer los ajustes de fábrica de</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>?</translation>
    </message>
    <message>
        <source>Driving data</source>
        <translation>Datos de viaje</translation>
    </message>
    <message>
        <source>Are you sure </source>
        <translation>¿Confirmar: </translation>
    </message>
    <message>
        <source>The car has not told its value</source>
        <translation>El vehículo aún no ha comunicado el valor</translation>
    </message>
    <message>
        <source>%1 %2 %3 ?</source>
        <translation>%1 “%2”%3</translation>
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
        <translation>Información del vehículo</translation>
    </message>
    <message>
        <source>Driving data</source>
        <translation>Datos de viaje</translation>
    </message>
    <message>
        <source>Tire pressure</source>
        <translation>Neumáticos</translation>
    </message>
    <message>
        <source>Car status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Autonomía</translation>
    </message>
    <message>
        <source>Consumption</source>
        <translation>Consumo</translation>
    </message>
    <message>
        <source>Avg. consumption</source>
        <translation>Consumo medio</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distancia</translation>
    </message>
    <message>
        <source>Avg. speed</source>
        <translation>Velocidad media</translation>
    </message>
    <message>
        <source>Tire pressure status</source>
        <translation>Presión de los neumáticos</translation>
    </message>
    <message>
        <source>Since start</source>
        <translation>Desde la salida</translation>
    </message>
    <message>
        <source>Since refueling</source>
        <translation>Desde el repostaje</translation>
    </message>
    <message>
        <source>Long-term</source>
        <translation>A largo plazo</translation>
    </message>
    <message>
        <source>Normal pressure</source>
        <translation>Presión normal</translation>
    </message>
    <message>
        <source>Low pressure</source>
        <translation>Presión baja</translation>
    </message>
    <message>
        <source>Hight pressure</source>
        <translation>Presión alta</translation>
    </message>
    <message>
        <source>Tire pressure is normal</source>
        <translation>La presión de los neumáticos es normal</translation>
    </message>
    <message>
        <source>Please check the tire pressure</source>
        <translation>Compruebe la presión de los neumáticos</translation>
    </message>
    <message>
        <source>Tire pressure is too low</source>
        <translation>Presión de los neumáticos demasiado baja</translation>
    </message>
    <message>
        <source>Tire pressure loss</source>
        <translation>Pérdida de presión de los neumáticos</translation>
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
        <translation>Servicio vencido</translation>
    </message>
    <message>
        <source>Time (h:min)</source>
        <translation>Tiempo (h:min)</translation>
    </message>
    <message>
        <source>not in this car</source>
        <translation>no disponible</translation>
    </message>
</context>
<context>
    <name>Vw</name>
    <message>
        <source>No entries available</source>
        <translation>No hay entradas</translation>
    </message>
    <message>
        <source>overdue by</source>
        <translation>vencido hace</translation>
    </message>
    <message>
        <source>Start-stop system is deactivated</source>
        <translation>El sistema start-stop está desactivado</translation>
    </message>
    <message>
        <source>Start-stop system is activated</source>
        <translation>El sistema start-stop está activado</translation>
    </message>
    <message>
        <source>Report code</source>
        <translation>Código del aviso</translation>
    </message>
    <message>
        <source>days</source>
        <translation>días</translation>
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
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Activated</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>ESC sport</source>
        <translation>ESC Sport</translation>
    </message>
    <message>
        <source>Esc system</source>
        <translation>Sistema ESC</translation>
    </message>
    <message>
        <source>Tyres</source>
        <translation>Neumáticos</translation>
    </message>
    <message>
        <source>Driver assistance</source>
        <translation>Asistencia al conductor</translation>
    </message>
    <message>
        <source>Parking and manoeuvring</source>
        <translation>Aparcar y maniobrar</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Luces</translation>
    </message>
    <message>
        <source>Mirrors and wipers</source>
        <translation>Espejos y limpiaparabrisas</translation>
    </message>
    <message>
        <source>Opening and closing</source>
        <translation>Abrir y cerrar</translation>
    </message>
    <message>
        <source>Multifunction display</source>
        <translation>Indicador multifunción</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Servicio</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Unidades</translation>
    </message>
    <message>
        <source>Seat driver profile</source>
        <translation>Asiento y perfil del conductor</translation>
    </message>
    <message>
        <source>Vehice status Start-stop</source>
        <translation>Estado del vehículo: start-stop</translation>
    </message>
    <message>
        <source>Vehice status reports</source>
        <translation>Estado del vehículo: avisos</translation>
    </message>
    <message>
        <source>Convenience consumer</source>
        <translation>Consumidores de confort</translation>
    </message>
    <message>
        <source>Factory settings</source>
        <translation>Ajustes de fábrica</translation>
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
        <translation>Estándar</translation>
    </message>
    <message>
        <source>Full load</source>
        <translation>Carga completa</translation>
    </message>
    <message>
        <source>Speed warning</source>
        <translation>Aviso de velocidad</translation>
    </message>
    <message>
        <source>Warning speed</source>
        <translation>Velocidad de aviso</translation>
    </message>
    <message>
        <source>TPMS SET</source>
        <translation>Guardar presión de los neumáticos</translation>
    </message>
    <message>
        <source>Direct tyres pressure monitoring</source>
        <translation>Control directo de la presión de los neumáticos</translation>
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
        <translation>Muy cerca</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Far</source>
        <translation>Lejos</translation>
    </message>
    <message>
        <source>Very far</source>
        <translation>Muy lejos</translation>
    </message>
    <message>
        <source>Lane assist</source>
        <translation>Asistente de carril</translation>
    </message>
    <message>
        <source>Lane keeping assist system</source>
        <translation>Asistente de permanencia en el carril</translation>
    </message>
    <message>
        <source>Driver alert system</source>
        <translation>Detector de cansancio</translation>
    </message>
    <message>
        <source>Front assist</source>
        <translation>Front Assist</translation>
    </message>
    <message>
        <source>Advance warning</source>
        <translation>Preaviso</translation>
    </message>
    <message>
        <source>Display distance warning</source>
        <translation>Mostrar aviso de distancia</translation>
    </message>
    <message>
        <source>Adaptive cruise control</source>
        <translation>Control de crucero adaptativo</translation>
    </message>
    <message>
        <source>Last distance selected</source>
        <translation>Última distancia elegida</translation>
    </message>
    <message>
        <source>Drive program</source>
        <translation>Programa de conducción</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distancia</translation>
    </message>
    <message>
        <source>Hill Descent Control</source>
        <translation>Asistente de descenso</translation>
    </message>
    <message>
        <source>Activa automatically</source>
        <translation>Activar automáticamente</translation>
    </message>
    <message>
        <source>Parking brake function</source>
        <translation>Función de freno de maniobra</translation>
    </message>
    <message>
        <source>Front volume</source>
        <translation>Volumen delantero</translation>
    </message>
    <message>
        <source>Front tone setting</source>
        <translation>Tono delantero</translation>
    </message>
    <message>
        <source>Rear volume</source>
        <translation>Volumen trasero</translation>
    </message>
    <message>
        <source>Rear tone setting</source>
        <translation>Tono trasero</translation>
    </message>
    <message>
        <source>Radar sound</source>
        <translation>Sonido del radar</translation>
    </message>
    <message>
        <source>Early</source>
        <translation>Temprano</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medio</translation>
    </message>
    <message>
        <source>Late</source>
        <translation>Tarde</translation>
    </message>
    <message>
        <source>Right traffic</source>
        <translation>Circulación por la derecha</translation>
    </message>
    <message>
        <source>Left traffic</source>
        <translation>Circulación por la izquierda</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanco</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Naranja</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
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
        <translation>Momento de encendido</translation>
    </message>
    <message>
        <source>Automatic headlight control in rain</source>
        <translation>Luces automáticas con lluvia</translation>
    </message>
    <message>
        <source>Lane change flash</source>
        <translation>Intermitentes de confort</translation>
    </message>
    <message>
        <source>Instrument/switch lighting</source>
        <translation>Iluminación de instrumentos y mandos</translation>
    </message>
    <message>
        <source>Coming home function</source>
        <translation>Función Coming Home</translation>
    </message>
    <message>
        <source>Leaving home function</source>
        <translation>Función Leaving Home</translation>
    </message>
    <message>
        <source>Travel mode</source>
        <translation>Modo viaje</translation>
    </message>
    <message>
        <source>Door ambient light</source>
        <translation>Iluminación ambiental de puertas</translation>
    </message>
    <message>
        <source>Foowell light</source>
        <translation>Iluminación zona reposapiés</translation>
    </message>
    <message>
        <source>Head light</source>
        <translation>Iluminación del techo</translation>
    </message>
    <message>
        <source>Front light</source>
        <translation>Iluminación delantera</translation>
    </message>
    <message>
        <source>All light</source>
        <translation>Todas las luces</translation>
    </message>
    <message>
        <source>Motorway light</source>
        <translation>Luz de autopista</translation>
    </message>
    <message>
        <source>Dynamic light assist</source>
        <translation>Asistente dinámico de luces</translation>
    </message>
    <message>
        <source>Interior environment lighting color</source>
        <translation>Color de la iluminación ambiental</translation>
    </message>
    <message>
        <source>Headlight illumination distance</source>
        <translation>Alcance de los faros</translation>
    </message>
    <message>
        <source>Daytime running lights</source>
        <translation>Luces diurnas</translation>
    </message>
    <message>
        <source>Synchronous adjustment</source>
        <translation>Ajuste sincronizado</translation>
    </message>
    <message>
        <source>Lower while reversing</source>
        <translation>Bajar en marcha atrás</translation>
    </message>
    <message>
        <source>Automatic wiping in rain</source>
        <translation>Barrido automático con lluvia</translation>
    </message>
    <message>
        <source>Rear window wiping in reverse gear</source>
        <translation>Barrido trasero en marcha atrás</translation>
    </message>
    <message>
        <source>Fold away after parking</source>
        <translation>Plegar al aparcar</translation>
    </message>
    <message>
        <source>Driver window</source>
        <translation>Ventanilla del conductor</translation>
    </message>
    <message>
        <source>All window</source>
        <translation>Todas las ventanillas</translation>
    </message>
    <message>
        <source>Vehicle side</source>
        <translation>Lado del vehículo</translation>
    </message>
    <message>
        <source>Single door</source>
        <translation>Una sola puerta</translation>
    </message>
    <message>
        <source>All doors</source>
        <translation>Todas las puertas</translation>
    </message>
    <message>
        <source>Convenience opening</source>
        <translation>Apertura de confort</translation>
    </message>
    <message>
        <source>Door unlocking</source>
        <translation>Desbloqueo de puertas</translation>
    </message>
    <message>
        <source>Automatic locking</source>
        <translation>Bloqueo automático</translation>
    </message>
    <message>
        <source>Inductive rear tailgate</source>
        <translation>Portón trasero por sensor</translation>
    </message>
    <message>
        <source>Acoustic confirmation</source>
        <translation>Confirmación acústica</translation>
    </message>
    <message>
        <source>Front window</source>
        <translation>Ventanilla delantera</translation>
    </message>
    <message>
        <source>Rear window</source>
        <translation>Ventanilla trasera</translation>
    </message>
    <message>
        <source>Sliding sunroof</source>
        <translation>Techo corredizo</translation>
    </message>
    <message>
        <source>Current consumption</source>
        <translation>Consumo instantáneo</translation>
    </message>
    <message>
        <source>Average consumption</source>
        <translation>Consumo medio</translation>
    </message>
    <message>
        <source>Convenience consumption</source>
        <translation>Consumo de confort</translation>
    </message>
    <message>
        <source>Eco tips</source>
        <translation>Consejos Eco</translation>
    </message>
    <message>
        <source>Travelling time</source>
        <translation>Tiempo de viaje</translation>
    </message>
    <message>
        <source>Distance travelled</source>
        <translation>Distancia recorrida</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>Velocidad media</translation>
    </message>
    <message>
        <source>Digital speed display</source>
        <translation>Indicador digital de velocidad</translation>
    </message>
    <message>
        <source>Oil temperature</source>
        <translation>Temperatura del aceite</translation>
    </message>
    <message>
        <source>Vehicle NO.</source>
        <translation>N.º de bastidor</translation>
    </message>
    <message>
        <source>Inspection days</source>
        <translation>Inspección (días)</translation>
    </message>
    <message>
        <source>Inspection distance</source>
        <translation>Inspección (distancia)</translation>
    </message>
    <message>
        <source>Oil change service days</source>
        <translation>Cambio de aceite (días)</translation>
    </message>
    <message>
        <source>Oil change service distance</source>
        <translation>Cambio de aceite (distancia)</translation>
    </message>
    <message>
        <source>Wiper in maintenance position</source>
        <translation>Limpiaparabrisas en posición de servicio</translation>
    </message>
    <message>
        <source>Reset &quot;Since start&quot;</source>
        <translation>Restablecer “Desde la salida”</translation>
    </message>
    <message>
        <source>Reset &quot;Long-term&quot;</source>
        <translation>Restablecer “A largo plazo”</translation>
    </message>
    <message>
        <source>Reset maintenance cycle</source>
        <translation>Restablecer intervalo de servicio</translation>
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
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Consumption</source>
        <translation>Consumo</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Presión</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Todos los ajustes</translation>
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
        <translation>Nieve</translation>
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
        <translation>Llave con mando activada</translation>
    </message>
    <message>
        <source>Remote key memory matching</source>
        <translation>Memoria asignada a la llave</translation>
    </message>
    <message>
        <source>Driving mode</source>
        <translation>Modo de conducción</translation>
    </message>
    <message>
        <source>Steering</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Motor</translation>
    </message>
    <message>
        <source>Climate</source>
        <translation>Climatización</translation>
    </message>
    <message>
        <source>Front lighting</source>
        <translation>Luces delanteras</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Car Setting</source>
        <translation>Ajustes del vehículo</translation>
    </message>
    <message>
        <source>Vehice Start-stop</source>
        <translation>Start-stop del vehículo</translation>
    </message>
    <message>
        <source>Vehice reports</source>
        <translation>Avisos del vehículo</translation>
    </message>
    <message>
        <source>Trailer mode</source>
        <translation>Modo remolque</translation>
    </message>
    <message>
        <source>Windscreen could become fogged</source>
        <translation>El parabrisas podría empañarse</translation>
    </message>
    <message>
        <source>Operating temperature not maintained</source>
        <translation>Temperatura de servicio no alcanzada</translation>
    </message>
    <message>
        <source>No driver detected</source>
        <translation>Conductor no detectado</translation>
    </message>
    <message>
        <source>Gearbox requires engine to be running</source>
        <translation>El cambio requiere el motor en marcha</translation>
    </message>
    <message>
        <source>Power consumption is high</source>
        <translation>Consumo eléctrico elevado</translation>
    </message>
    <message>
        <source>Starting start-stop system</source>
        <translation>El sistema start-stop se está iniciando</translation>
    </message>
    <message>
        <source>Engine must be running</source>
        <translation>El motor debe estar en marcha</translation>
    </message>
    <message>
        <source>Gradient too steep</source>
        <translation>Pendiente excesiva</translation>
    </message>
    <message>
        <source>Start-stop system is currently not  available</source>
        <translation>El sistema start-stop no está disponible en este momento</translation>
    </message>
    <message>
        <source>Emergency brake function intervention</source>
        <translation>Intervención de la frenada de emergencia</translation>
    </message>
    <message>
        <source>Brake requires engine to be running</source>
        <translation>El freno requiere el motor en marcha</translation>
    </message>
    <message>
        <source>Power consumption is hight</source>
        <translation>Consumo eléctrico elevado</translation>
    </message>
    <message>
        <source>Air conditioning requires engine to be running</source>
        <translation>El climatizador requiere el motor en marcha</translation>
    </message>
    <message>
        <source>Steering angle too great</source>
        <translation>Ángulo de dirección excesivo</translation>
    </message>
    <message>
        <source>Manoeuvering mode</source>
        <translation>Modo maniobra</translation>
    </message>
    <message>
        <source>Defrost function is switched on</source>
        <translation>La función de desempañado está activada</translation>
    </message>
    <message>
        <source>Driver seatbelt not fastened</source>
        <translation>Cinturón del conductor sin abrochar</translation>
    </message>
    <message>
        <source>Driver door open</source>
        <translation>Puerta del conductor abierta</translation>
    </message>
    <message>
        <source>Accelerator is depressed</source>
        <translation>Acelerador pisado</translation>
    </message>
    <message>
        <source>Wndscreen heating is switched on</source>
        <translation>La calefacción del parabrisas está activada</translation>
    </message>
    <message>
        <source>Maximum air conditioning requires engine to be running</source>
        <translation>La climatización máxima requiere el motor en marcha</translation>
    </message>
    <message>
        <source>Bonnet has been opened</source>
        <translation>Se ha abierto el capó</translation>
    </message>
    <message>
        <source>Engine stop currently not possible</source>
        <translation>Ahora no es posible parar el motor</translation>
    </message>
    <message>
        <source>Off-road mode is activated</source>
        <translation>El modo Offroad está activado</translation>
    </message>
    <message>
        <source>System protection intervention Buttonlever activated too often</source>
        <translation>Protección del sistema: tecla/palanca accionada con demasiada frecuencia</translation>
    </message>
    <message>
        <source>Gear is engaged</source>
        <translation>Marcha engranada</translation>
    </message>
    <message>
        <source>Start-stop button pressed</source>
        <translation>Tecla start-stop pulsada</translation>
    </message>
    <message>
        <source>ACC intervention</source>
        <translation>Intervención del ACC</translation>
    </message>
    <message>
        <source>Park Assist is activated</source>
        <translation>El asistente de aparcamiento está activado</translation>
    </message>
    <message>
        <source>ESC is switched off</source>
        <translation>El ESC está desactivado</translation>
    </message>
    <message>
        <source>Start-stop system requires engine to be running</source>
        <translation>El sistema start-stop requiere el motor en marcha</translation>
    </message>
    <message>
        <source>Air conditioning</source>
        <translation>Climatizador</translation>
    </message>
    <message>
        <source>Auxiliary heater</source>
        <translation>Calefacción adicional</translation>
    </message>
    <message>
        <source>Rear window heating</source>
        <translation>Luneta térmica</translation>
    </message>
    <message>
        <source>Left seat heating</source>
        <translation>Calefacción asiento izquierdo</translation>
    </message>
    <message>
        <source>Right seat heating</source>
        <translation>Calefacción asiento derecho</translation>
    </message>
    <message>
        <source>Left seat ventilation</source>
        <translation>Ventilación asiento izquierdo</translation>
    </message>
    <message>
        <source>Right seat ventilation</source>
        <translation>Ventilación asiento derecho</translation>
    </message>
    <message>
        <source>Left head area heating</source>
        <translation>Calefacción de nuca izquierda</translation>
    </message>
    <message>
        <source>Right head area heating</source>
        <translation>Calefacción de nuca derecha</translation>
    </message>
    <message>
        <source>Front fog light</source>
        <translation>Faros antiniebla</translation>
    </message>
    <message>
        <source>Rear fog light</source>
        <translation>Luz antiniebla trasera</translation>
    </message>
    <message>
        <source>Windscreen heating</source>
        <translation>Calefacción del parabrisas</translation>
    </message>
    <message>
        <source>Steering whell heating</source>
        <translation>Calefacción del volante</translation>
    </message>
    <message>
        <source>Mirror heating</source>
        <translation>Calefacción de los espejos</translation>
    </message>
    <message>
        <source>Rear seat heating</source>
        <translation>Calefacción asientos traseros</translation>
    </message>
    <message>
        <source>Rear seat ventilation</source>
        <translation>Ventilación asientos traseros</translation>
    </message>
    <message>
        <source>Socket</source>
        <translation>Toma de corriente</translation>
    </message>
    <message>
        <source>Drink holder</source>
        <translation>Portabebidas</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Enviado</translation>
    </message>
    <message>
        <source>Waiting for the car</source>
        <translation>Esperando al vehículo</translation>
    </message>
    <message>
        <source>Last report %1 min ago</source>
        <translation>Recibido hace %1 min</translation>
    </message>
    <message>
        <source>Last report %1 h ago</source>
        <translation>Recibido hace %1 h</translation>
    </message>
</context>
<context>
    <name>XinHangSettings</name>
    <message>
        <source>Original car</source>
        <translation>Original del vehículo</translation>
    </message>
    <message>
        <source>360</source>
        <translation>360</translation>
    </message>
    <message>
        <source>Add camera</source>
        <translation>Cámara adicional</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>AfterMarket Camera</source>
        <translation>Cámara no original</translation>
    </message>
    <message>
        <source>OE Camera</source>
        <translation>Cámara original</translation>
    </message>
    <message>
        <source>AfterMarket 360</source>
        <translation>360° no original</translation>
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
        <translation>Tecla de aparcamiento</translation>
    </message>
    <message>
        <source>Reverse State</source>
        <translation>Estado de marcha atrás</translation>
    </message>
    <message>
        <source>Gear Position</source>
        <translation>Posición de la palanca</translation>
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
        <translation>Horizontal y vertical</translation>
    </message>
    <message>
        <source>Reversing camera</source>
        <translation>Cámara de marcha atrás</translation>
    </message>
    <message>
        <source>Right camera</source>
        <translation>Cámara derecha</translation>
    </message>
    <message>
        <source>Reversing track</source>
        <translation>Guías de marcha atrás</translation>
    </message>
    <message>
        <source>Reversing radar</source>
        <translation>Radar de marcha atrás</translation>
    </message>
    <message>
        <source>Car type</source>
        <translation>Tipo de vehículo</translation>
    </message>
    <message>
        <source>Display type</source>
        <translation>Tipo de pantalla</translation>
    </message>
    <message>
        <source>Sound type</source>
        <translation>Tipo de sonido</translation>
    </message>
    <message>
        <source>Reverse camera</source>
        <translation>Tipo de cámara de marcha atrás</translation>
    </message>
    <message>
        <source>Starting front view</source>
        <translation>Vista delantera al arrancar</translation>
    </message>
    <message>
        <source>Steering front view</source>
        <translation>Vista delantera al girar</translation>
    </message>
    <message>
        <source>Reversing front view</source>
        <translation>Vista delantera tras marcha atrás</translation>
    </message>
    <message>
        <source>Dedicated right view</source>
        <translation>Vista derecha propia</translation>
    </message>
    <message>
        <source>Front view after right view</source>
        <translation>Vista delantera tras vista derecha</translation>
    </message>
    <message>
        <source>Rear video format</source>
        <translation>Formato de vídeo trasero</translation>
    </message>
    <message>
        <source>Reverse condition</source>
        <translation>Detección de marcha atrás</translation>
    </message>
    <message>
        <source>Front view mirror</source>
        <translation>Espejo vista delantera</translation>
    </message>
    <message>
        <source>Right view mirror</source>
        <translation>Espejo vista derecha</translation>
    </message>
    <message>
        <source>Rear view mirror</source>
        <translation>Espejo vista trasera</translation>
    </message>
    <message>
        <source>Reverse track</source>
        <translation>Guías de marcha atrás</translation>
    </message>
    <message>
        <source>Reverse radar</source>
        <translation>Radar de marcha atrás</translation>
    </message>
</context>
<context>
    <name>XinHangSettingsWindow</name>
    <message>
        <source>Car Setting</source>
        <translation>Ajustes del vehículo</translation>
    </message>
</context>
</TS>

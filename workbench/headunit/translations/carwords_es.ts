<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>CarWords</name>
    <message>
        <source>360 view</source>
        <translation>Vista 360°</translation>
    </message>
    <message>
        <source>A/C</source>
        <translation>A/C</translation>
    </message>
    <message>
        <source>A/C max</source>
        <translation>A/C máx.</translation>
    </message>
    <message>
        <source>Activated</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Activo</translation>
    </message>
    <message>
        <source>Advance warning</source>
        <translation>Preaviso</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>Amplifier</source>
        <translation>Amplificador</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Ángulo</translation>
    </message>
    <message>
        <source>Angled</source>
        <translation>En ángulo</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Aplicación</translation>
    </message>
    <message>
        <source>Application none</source>
        <translation>Ninguna aplicación</translation>
    </message>
    <message>
        <source>Arrows</source>
        <translation>Flechas</translation>
    </message>
    <message>
        <source>Assist</source>
        <translation>Asistencia</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Auto compressor</source>
        <translation>Compresor automático</translation>
    </message>
    <message>
        <source>Auto heating driver</source>
        <translation>Calefacción auto conductor</translation>
    </message>
    <message>
        <source>Auto heating passenger</source>
        <translation>Calefacción auto acompañante</translation>
    </message>
    <message>
        <source>Auto lock</source>
        <translation>Bloqueo automático</translation>
    </message>
    <message>
        <source>Auto recirculation</source>
        <translation>Recirculación automática</translation>
    </message>
    <message>
        <source>Auto unlock</source>
        <translation>Desbloqueo automático</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Average consumption</source>
        <translation>Consumo medio</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>Velocidad media</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Backlight</source>
        <translation>Retroiluminación</translation>
    </message>
    <message>
        <source>Backwards</source>
        <translation>Hacia atrás</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Balance</translation>
    </message>
    <message>
        <source>Band</source>
        <translation>Banda</translation>
    </message>
    <message>
        <source>Bass</source>
        <translation>Graves</translation>
    </message>
    <message>
        <source>Beyond</source>
        <translation>Más allá del final</translation>
    </message>
    <message>
        <source>Blind spot</source>
        <translation>Ángulo muerto</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Bonnet</source>
        <translation>Capó</translation>
    </message>
    <message>
        <source>Boot</source>
        <translation>Maletero</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Caja</translation>
    </message>
    <message>
        <source>Brake</source>
        <translation>Freno</translation>
    </message>
    <message>
        <source>Brightest</source>
        <translation>Más brillante</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>A mano</translation>
    </message>
    <message>
        <source>Cabin</source>
        <translation>Habitáculo</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Llamar</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Cámara</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Car type</source>
        <translation>Tipo de vehículo</translation>
    </message>
    <message>
        <source>Centerpoint</source>
        <translation>Centerpoint</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Comprobar</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Chino</translation>
    </message>
    <message>
        <source>Circulation</source>
        <translation>Circulación de aire</translation>
    </message>
    <message>
        <source>Clean</source>
        <translation>Limpiar</translation>
    </message>
    <message>
        <source>Climate</source>
        <translation>Climatización</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Codes</source>
        <translation>Códigos</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Comfort</source>
        <translation>Confort</translation>
    </message>
    <message>
        <source>Comfort curve</source>
        <translation>Curva de confort</translation>
    </message>
    <message>
        <source>Coming home</source>
        <translation>Coming Home</translation>
    </message>
    <message>
        <source>Confirmation</source>
        <translation>Confirmación</translation>
    </message>
    <message>
        <source>Consumers</source>
        <translation>Consumidores</translation>
    </message>
    <message>
        <source>Consumption</source>
        <translation>Consumo</translation>
    </message>
    <message>
        <source>Convenience</source>
        <translation>Confort</translation>
    </message>
    <message>
        <source>Cursor down</source>
        <translation>Cursor abajo</translation>
    </message>
    <message>
        <source>Cursor left</source>
        <translation>Cursor izquierda</translation>
    </message>
    <message>
        <source>Cursor right</source>
        <translation>Cursor derecha</translation>
    </message>
    <message>
        <source>Cursor up</source>
        <translation>Cursor arriba</translation>
    </message>
    <message>
        <source>Darkest</source>
        <translation>Más oscuro</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Días</translation>
    </message>
    <message>
        <source>Daytime</source>
        <translation>Luces diurnas</translation>
    </message>
    <message>
        <source>Defrost</source>
        <translation>Desempañado</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Grados</translation>
    </message>
    <message>
        <source>Digit</source>
        <translation>Cifra</translation>
    </message>
    <message>
        <source>Dipped</source>
        <translation>Cruce</translation>
    </message>
    <message>
        <source>Dipped and fog</source>
        <translation>Cruce y antiniebla</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Indicador</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distancia</translation>
    </message>
    <message>
        <source>Distance warning</source>
        <translation>Aviso de distancia</translation>
    </message>
    <message>
        <source>Doors</source>
        <translation>Puertas</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Abajo</translation>
    </message>
    <message>
        <source>Down left</source>
        <translation>Abajo izquierda</translation>
    </message>
    <message>
        <source>Down right</source>
        <translation>Abajo derecha</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Conducción</translation>
    </message>
    <message>
        <source>Drive program</source>
        <translation>Programa de conducción</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>Conductor</translation>
    </message>
    <message>
        <source>Driver alert</source>
        <translation>Detector de cansancio</translation>
    </message>
    <message>
        <source>Driver stage</source>
        <translation>Escena del conductor</translation>
    </message>
    <message>
        <source>Dual</source>
        <translation>Bizona</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dinámico</translation>
    </message>
    <message>
        <source>ESC</source>
        <translation>ESC</translation>
    </message>
    <message>
        <source>Early</source>
        <translation>Temprano</translation>
    </message>
    <message>
        <source>Eco</source>
        <translation>Eco</translation>
    </message>
    <message>
        <source>Eco tips</source>
        <translation>Consejos Eco</translation>
    </message>
    <message>
        <source>Eject</source>
        <translation>Expulsar</translation>
    </message>
    <message>
        <source>Emergency</source>
        <translation>Emergencia</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Motor</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Inglés</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Factory</source>
        <translation>Pantalla original</translation>
    </message>
    <message>
        <source>Fader</source>
        <translation>Fader</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>Ventilador</translation>
    </message>
    <message>
        <source>Fan auto</source>
        <translation>Ventilador auto</translation>
    </message>
    <message>
        <source>Far</source>
        <translation>Lejos</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Rápido</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>Fallo</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>First forward</source>
        <translation>Primera marcha adelante</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Plegar</translation>
    </message>
    <message>
        <source>Follow me</source>
        <translation>Luz de acompañamiento</translation>
    </message>
    <message>
        <source>Footwell</source>
        <translation>Zona reposapiés</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avanzar</translation>
    </message>
    <message>
        <source>Forward gear</source>
        <translation>Marcha adelante</translation>
    </message>
    <message>
        <source>Fresh air cycle</source>
        <translation>Ciclo de aire fresco</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Delante</translation>
    </message>
    <message>
        <source>Front and around</source>
        <translation>Delante y alrededor</translation>
    </message>
    <message>
        <source>Front and left</source>
        <translation>Delante e izquierda</translation>
    </message>
    <message>
        <source>Front and right</source>
        <translation>Delante y derecha</translation>
    </message>
    <message>
        <source>Front left</source>
        <translation>Delante izquierda</translation>
    </message>
    <message>
        <source>Front right</source>
        <translation>Delante derecha</translation>
    </message>
    <message>
        <source>Front service</source>
        <translation>Servicio delantero</translation>
    </message>
    <message>
        <source>Front tone</source>
        <translation>Tono delantero</translation>
    </message>
    <message>
        <source>Front volume</source>
        <translation>Volumen delantero</translation>
    </message>
    <message>
        <source>Front window</source>
        <translation>Ventanilla delantera</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Completa</translation>
    </message>
    <message>
        <source>Function call</source>
        <translation>Función llamar</translation>
    </message>
    <message>
        <source>Function forward</source>
        <translation>Función avanzar</translation>
    </message>
    <message>
        <source>Function hangup</source>
        <translation>Función colgar</translation>
    </message>
    <message>
        <source>Function next</source>
        <translation>Función siguiente</translation>
    </message>
    <message>
        <source>Function previous</source>
        <translation>Función anterior</translation>
    </message>
    <message>
        <source>Function rewind</source>
        <translation>Función rebobinar</translation>
    </message>
    <message>
        <source>Gear</source>
        <translation>Marcha</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>Hand</source>
        <translation>Freno de mano</translation>
    </message>
    <message>
        <source>Hang up</source>
        <translation>Colgar</translation>
    </message>
    <message>
        <source>Head</source>
        <translation>Techo</translation>
    </message>
    <message>
        <source>Heating driver</source>
        <translation>Calefacción conductor</translation>
    </message>
    <message>
        <source>Heating passenger</source>
        <translation>Calefacción acompañante</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alto</translation>
    </message>
    <message>
        <source>Hill descent</source>
        <translation>Descenso</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Illumination</source>
        <translation>Iluminación</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Recirculación</translation>
    </message>
    <message>
        <source>Indicator</source>
        <translation>Intermitente</translation>
    </message>
    <message>
        <source>Indicator volume</source>
        <translation>Volumen de intermitentes</translation>
    </message>
    <message>
        <source>Individual</source>
        <translation>Individual</translation>
    </message>
    <message>
        <source>Inspection</source>
        <translation>Inspección</translation>
    </message>
    <message>
        <source>Instruments</source>
        <translation>Instrumentos</translation>
    </message>
    <message>
        <source>Introduction</source>
        <translation>Introducción</translation>
    </message>
    <message>
        <source>Ioniser</source>
        <translation>Ionizador</translation>
    </message>
    <message>
        <source>Ioniser at start</source>
        <translation>Ionizador al arrancar</translation>
    </message>
    <message>
        <source>Ioniser mode</source>
        <translation>Modo del ionizador</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Tecla</translation>
    </message>
    <message>
        <source>Key form</source>
        <translation>Formato de tecla</translation>
    </message>
    <message>
        <source>Key position</source>
        <translation>Asiento por llave</translation>
    </message>
    <message>
        <source>Known</source>
        <translation>Conocido</translation>
    </message>
    <message>
        <source>Lane</source>
        <translation>Carril</translation>
    </message>
    <message>
        <source>Lane change</source>
        <translation>Cambio de carril</translation>
    </message>
    <message>
        <source>Lane departure</source>
        <translation>Salida de carril</translation>
    </message>
    <message>
        <source>Lane keeping</source>
        <translation>Permanencia en el carril</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Last distance</source>
        <translation>Última distancia</translation>
    </message>
    <message>
        <source>Late</source>
        <translation>Tarde</translation>
    </message>
    <message>
        <source>Leaving home</source>
        <translation>Leaving Home</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Left indicator</source>
        <translation>Intermitente izquierdo</translation>
    </message>
    <message>
        <source>Left mirror</source>
        <translation>Espejo izquierdo</translation>
    </message>
    <message>
        <source>Left step</source>
        <translation>Nivel izquierdo</translation>
    </message>
    <message>
        <source>Lids</source>
        <translation>Tapas</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Luces</translation>
    </message>
    <message>
        <source>Lighting</source>
        <translation>Iluminación</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Carga</translation>
    </message>
    <message>
        <source>Lock sound</source>
        <translation>Sonido de bloqueo</translation>
    </message>
    <message>
        <source>Long</source>
        <translation>Largo</translation>
    </message>
    <message>
        <source>Long term</source>
        <translation>A largo plazo</translation>
    </message>
    <message>
        <source>Loss</source>
        <translation>Pérdida</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Bajo</translation>
    </message>
    <message>
        <source>Lower reversing</source>
        <translation>Bajar en marcha atrás</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Mapa</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Medios</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medio</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Mirrors</source>
        <translation>Espejos</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>Motorway</source>
        <translation>Autopista</translation>
    </message>
    <message>
        <source>Moving object</source>
        <translation>Objetos móviles</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Silencio</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Night brightness</source>
        <translation>Brillo nocturno</translation>
    </message>
    <message>
        <source>No signal</source>
        <translation>Sin señal</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Offroad</source>
        <translation>Offroad</translation>
    </message>
    <message>
        <source>Offroad climate</source>
        <translation>Offroad: climatización</translation>
    </message>
    <message>
        <source>Offroad individual</source>
        <translation>Offroad Individual</translation>
    </message>
    <message>
        <source>Oil</source>
        <translation>Aceite</translation>
    </message>
    <message>
        <source>Oil temperature</source>
        <translation>Temperatura del aceite</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>Apertura</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Naranja</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Aire exterior</translation>
    </message>
    <message>
        <source>Outside</source>
        <translation>Exterior</translation>
    </message>
    <message>
        <source>PA</source>
        <translation>PA</translation>
    </message>
    <message>
        <source>Parallel</source>
        <translation>En paralelo</translation>
    </message>
    <message>
        <source>Parallel parking</source>
        <translation>Aparcar en paralelo</translation>
    </message>
    <message>
        <source>Parking</source>
        <translation>Aparcar</translation>
    </message>
    <message>
        <source>Parking picture</source>
        <translation>Imagen de aparcamiento</translation>
    </message>
    <message>
        <source>Perpendicular</source>
        <translation>En batería</translation>
    </message>
    <message>
        <source>Perpendicular parking</source>
        <translation>Aparcar en batería</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Teléfono</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Encendido</translation>
    </message>
    <message>
        <source>Power time</source>
        <translation>Tiempo de encendido</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Presión</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Radar</source>
        <translation>Radar</translation>
    </message>
    <message>
        <source>Radar maxima</source>
        <translation>Máximos del radar</translation>
    </message>
    <message>
        <source>Radar sound</source>
        <translation>Sonido del radar</translation>
    </message>
    <message>
        <source>Rain</source>
        <translation>Lluvia</translation>
    </message>
    <message>
        <source>Rain wiping</source>
        <translation>Barrido con lluvia</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Autonomía</translation>
    </message>
    <message>
        <source>Rear</source>
        <translation>Detrás</translation>
    </message>
    <message>
        <source>Rear and around</source>
        <translation>Detrás y alrededor</translation>
    </message>
    <message>
        <source>Rear and left</source>
        <translation>Detrás e izquierda</translation>
    </message>
    <message>
        <source>Rear and right</source>
        <translation>Detrás y derecha</translation>
    </message>
    <message>
        <source>Rear defrost</source>
        <translation>Luneta térmica</translation>
    </message>
    <message>
        <source>Rear left</source>
        <translation>Detrás izquierda</translation>
    </message>
    <message>
        <source>Rear reversing</source>
        <translation>Trasero en marcha atrás</translation>
    </message>
    <message>
        <source>Rear right</source>
        <translation>Detrás derecha</translation>
    </message>
    <message>
        <source>Rear seat</source>
        <translation>Asiento trasero</translation>
    </message>
    <message>
        <source>Rear tone</source>
        <translation>Tono trasero</translation>
    </message>
    <message>
        <source>Rear volume</source>
        <translation>Volumen trasero</translation>
    </message>
    <message>
        <source>Rear window</source>
        <translation>Ventanilla trasera</translation>
    </message>
    <message>
        <source>Rear wiping</source>
        <translation>Barrido trasero</translation>
    </message>
    <message>
        <source>Reasons</source>
        <translation>Motivos</translation>
    </message>
    <message>
        <source>Relax</source>
        <translation>Relax</translation>
    </message>
    <message>
        <source>Remote</source>
        <translation>Mando a distancia</translation>
    </message>
    <message>
        <source>Remote key</source>
        <translation>Llave con mando</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Avisos</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Marcha atrás</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Rebobinar</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Right indicator</source>
        <translation>Intermitente derecho</translation>
    </message>
    <message>
        <source>Right mirror</source>
        <translation>Espejo derecho</translation>
    </message>
    <message>
        <source>Right step</source>
        <translation>Nivel derecho</translation>
    </message>
    <message>
        <source>Roller down</source>
        <translation>Rueda abajo</translation>
    </message>
    <message>
        <source>Roller up</source>
        <translation>Rueda arriba</translation>
    </message>
    <message>
        <source>SOS</source>
        <translation>SOS</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Escala</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Exploración</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Pantalla</translation>
    </message>
    <message>
        <source>Seat</source>
        <translation>Asiento</translation>
    </message>
    <message>
        <source>Sensor</source>
        <translation>Sensor</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Servicio</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Corto</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Side</source>
        <translation>Lado</translation>
    </message>
    <message>
        <source>Since refuel</source>
        <translation>Desde el repostaje</translation>
    </message>
    <message>
        <source>Since start</source>
        <translation>Desde la salida</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>Una sola</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Lento</translation>
    </message>
    <message>
        <source>Smart entry</source>
        <translation>Acceso inteligente</translation>
    </message>
    <message>
        <source>Snow</source>
        <translation>Nieve</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>Suave</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Speed limit</source>
        <translation>Límite de velocidad</translation>
    </message>
    <message>
        <source>Speed lock</source>
        <translation>Bloqueo en marcha</translation>
    </message>
    <message>
        <source>Speed volume</source>
        <translation>Volumen según velocidad</translation>
    </message>
    <message>
        <source>Speed warning</source>
        <translation>Aviso de velocidad</translation>
    </message>
    <message>
        <source>Sport</source>
        <translation>Sport</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Estándar</translation>
    </message>
    <message>
        <source>Start animation</source>
        <translation>Animación de inicio</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Hora de salida</translation>
    </message>
    <message>
        <source>Start-stop</source>
        <translation>Start-stop</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>Arranca</translation>
    </message>
    <message>
        <source>Steering</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Steering mode</source>
        <translation>Modo de dirección</translation>
    </message>
    <message>
        <source>Steering wheel</source>
        <translation>Volante</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Niveles</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Alto</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Estilo</translation>
    </message>
    <message>
        <source>Sunroof</source>
        <translation>Techo corredizo</translation>
    </message>
    <message>
        <source>Surround</source>
        <translation>Envolvente</translation>
    </message>
    <message>
        <source>Switch on</source>
        <translation>Encendido</translation>
    </message>
    <message>
        <source>Synchronous</source>
        <translation>Sincronizado</translation>
    </message>
    <message>
        <source>Tailgate</source>
        <translation>Portón</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>To face</source>
        <translation>A la cara</translation>
    </message>
    <message>
        <source>To feet</source>
        <translation>A los pies</translation>
    </message>
    <message>
        <source>To window</source>
        <translation>Al parabrisas</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Tráfico</translation>
    </message>
    <message>
        <source>Treble</source>
        <translation>Agudos</translation>
    </message>
    <message>
        <source>Trip</source>
        <translation>Viaje</translation>
    </message>
    <message>
        <source>Tune knob left</source>
        <translation>Sintonía izquierda</translation>
    </message>
    <message>
        <source>Tune knob right</source>
        <translation>Sintonía derecha</translation>
    </message>
    <message>
        <source>Turning fog</source>
        <translation>Antiniebla en curva</translation>
    </message>
    <message>
        <source>Twice</source>
        <translation>Doble</translation>
    </message>
    <message>
        <source>Tyres</source>
        <translation>Neumáticos</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Unidades</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Desbloquear</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Up left</source>
        <translation>Arriba izquierda</translation>
    </message>
    <message>
        <source>Up right</source>
        <translation>Arriba derecha</translation>
    </message>
    <message>
        <source>Vehicle number</source>
        <translation>N.º de bastidor</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Very close</source>
        <translation>Muy cerca</translation>
    </message>
    <message>
        <source>Very far</source>
        <translation>Muy lejos</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Voz</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>Volumen −</translation>
    </message>
    <message>
        <source>Volume knob down</source>
        <translation>Mando de volumen −</translation>
    </message>
    <message>
        <source>Volume knob up</source>
        <translation>Mando de volumen +</translation>
    </message>
    <message>
        <source>Volume up</source>
        <translation>Volumen +</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Warning volume</source>
        <translation>Volumen de avisos</translation>
    </message>
    <message>
        <source>Way</source>
        <translation>Forma</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Bienvenida</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanco</translation>
    </message>
    <message>
        <source>Window and roof</source>
        <translation>Ventanillas y techo</translation>
    </message>
    <message>
        <source>Wiper position</source>
        <translation>Posición de limpiaparabrisas</translation>
    </message>
    <message>
        <source>Wipers</source>
        <translation>Limpiaparabrisas</translation>
    </message>
    <message>
        <source>Wish AM</source>
        <translation>Petición AM</translation>
    </message>
    <message>
        <source>Wish AUX</source>
        <translation>Petición AUX</translation>
    </message>
    <message>
        <source>Wish Bluetooth</source>
        <translation>Petición Bluetooth</translation>
    </message>
    <message>
        <source>Wish CD</source>
        <translation>Petición CD</translation>
    </message>
    <message>
        <source>Wish FM</source>
        <translation>Petición FM</translation>
    </message>
    <message>
        <source>Wish USB</source>
        <translation>Petición USB</translation>
    </message>
    <message>
        <source>Wish answer</source>
        <translation>Petición responder</translation>
    </message>
    <message>
        <source>Wish refuse</source>
        <translation>Petición rechazar</translation>
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

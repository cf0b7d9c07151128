<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>AppPage</name>
    <message>
        <source>This picture comes from the car.</source>
        <translation>Esta imagen viene del vehículo.</translation>
    </message>
</context>
<context>
    <name>BoxKeysPage</name>
    <message>
        <source>Keys on the steering wheel</source>
        <translation>Teclas del volante</translation>
    </message>
    <message>
        <source>Keys on the car&apos;s panel</source>
        <translation>Teclas del salpicadero</translation>
    </message>
    <message>
        <source>This car has no keys</source>
        <translation>Este vehículo no tiene teclas</translation>
    </message>
    <message>
        <source>Knobs</source>
        <translation>Mandos giratorios</translation>
    </message>
</context>
<context>
    <name>BoxPage</name>
    <message>
        <source>Scenario</source>
        <translation>Escenario</translation>
    </message>
    <message>
        <source>Scenarios (*.scn)</source>
        <translation>Escenarios (*.scn)</translation>
    </message>
    <message>
        <source>Waits for the unit&apos;s ready</source>
        <translation>Espera a que la unidad esté lista</translation>
    </message>
    <message>
        <source>Talks with the unit</source>
        <translation>Habla con la unidad</translation>
    </message>
    <message>
        <source>Silent: the unit did not acknowledge</source>
        <translation>Callada: la unidad no confirmó</translation>
    </message>
    <message>
        <source>The unit has not opened the port</source>
        <translation>La unidad no ha abierto el puerto</translation>
    </message>
    <message>
        <source>Nothing yet</source>
        <translation>Nada todavía</translation>
    </message>
    <message>
        <source>Box at %1</source>
        <translation>Caja en %1</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Open ...</source>
        <translation>Abrir…</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>None chosen</source>
        <translation>Ninguno elegido</translation>
    </message>
    <message>
        <source>%1 plays</source>
        <translation>%1 en curso</translation>
    </message>
    <message>
        <source>Line faults</source>
        <translation>Fallos de línea</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>Ruido</translation>
    </message>
    <message>
        <source>Cut a package</source>
        <translation>Cortar un paquete</translation>
    </message>
    <message>
        <source>Corrupt a package</source>
        <translation>Alterar un paquete</translation>
    </message>
    <message>
        <source>Silence, 3 s</source>
        <translation>Silencio, 3 s</translation>
    </message>
    <message>
        <source>What the unit told the box</source>
        <translation>Lo que la unidad dijo a la caja</translation>
    </message>
    <message>
        <source>Line log</source>
        <translation>Registro de línea</translation>
    </message>
    <message>
        <source>Flip a bit</source>
        <translation>Invertir un bit</translation>
    </message>
    <message>
        <source>Lose a byte</source>
        <translation>Perder un byte</translation>
    </message>
    <message>
        <source>Double a byte</source>
        <translation>Duplicar un byte</translation>
    </message>
    <message>
        <source>Wrong length</source>
        <translation>Longitud errónea</translation>
    </message>
    <message>
        <source>Stall, 300 ms</source>
        <translation>Atasco, 300 ms</translation>
    </message>
    <message>
        <source>Garbage</source>
        <translation>Basura</translation>
    </message>
    <message>
        <source>Late answer</source>
        <translation>Respuesta tardía</translation>
    </message>
    <message>
        <source>Cut the update</source>
        <translation>Cortar la actualización</translation>
    </message>
    <message>
        <source>Pull the line</source>
        <translation>Desenchufar la línea</translation>
    </message>
    <message>
        <source>Plug it in</source>
        <translation>Enchufar</translation>
    </message>
    <message>
        <source>Bad line</source>
        <translation>Línea mala</translation>
    </message>
    <message>
        <source>Good line</source>
        <translation>Línea buena</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Detenida</translation>
    </message>
    <message>
        <source>Silent by order</source>
        <translation>Callada por orden</translation>
    </message>
</context>
<context>
    <name>CarPage</name>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Mid left</source>
        <translation>Centro izquierda</translation>
    </message>
    <message>
        <source>Mid right</source>
        <translation>Centro derecha</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
</context>
<context>
    <name>CarPicker</name>
    <message>
        <source>Which car?</source>
        <translation>¿Qué vehículo?</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Virtual box</source>
        <translation>Caja virtual</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The decoder that is fitted</source>
        <translation>El decodificador instalado</translation>
    </message>
    <message>
        <source>Its line: a virtual box, or a serial device of this computer</source>
        <translation>Su línea: una caja virtual o un puerto serie de este ordenador</translation>
    </message>
    <message>
        <source>%1 (no virtual box)</source>
        <translation>%1 (sin caja virtual)</translation>
    </message>
</context>
<context>
    <name>CarView</name>
    <message>
        <source>Front left door open</source>
        <translation>Puerta delantera izquierda abierta</translation>
    </message>
    <message>
        <source>Front right door open</source>
        <translation>Puerta delantera derecha abierta</translation>
    </message>
    <message>
        <source>Rear left door open</source>
        <translation>Puerta trasera izquierda abierta</translation>
    </message>
    <message>
        <source>Rear right door open</source>
        <translation>Puerta trasera derecha abierta</translation>
    </message>
    <message>
        <source>Doors open</source>
        <translation>Puertas abiertas</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Alto</translation>
    </message>
    <message>
        <source>All doors closed</source>
        <translation>Todas las puertas cerradas</translation>
    </message>
    <message>
        <source>Steering %1°</source>
        <translation>Dirección %1°</translation>
    </message>
    <message>
        <source>Doors not reported</source>
        <translation>Puertas sin datos</translation>
    </message>
    <message>
        <source>The car has reported nothing yet</source>
        <translation>El vehículo aún no ha comunicado nada</translation>
    </message>
</context>
<context>
    <name>DeskWindow</name>
    <message>
        <source>Head unit on the desk</source>
        <translation>Unidad de mesa</translation>
    </message>
    <message>
        <source>Not sure: %1</source>
        <translation>No es seguro: %1</translation>
    </message>
    <message>
        <source>Hello said: the box was sent the ready command</source>
        <translation>Saludo enviado: la caja ha recibido el comando de listo</translation>
    </message>
    <message>
        <source>There is no open line to say hello on</source>
        <translation>No hay ninguna línea abierta para saludar</translation>
    </message>
    <message>
        <source>Saved the last 60 s: %1</source>
        <translation>Últimos 60 s guardados: %1</translation>
    </message>
    <message>
        <source>Show the panel (F9)</source>
        <translation>Mostrar el panel (F9)</translation>
    </message>
    <message>
        <source>Fold the panel away (F9)</source>
        <translation>Plegar el panel (F9)</translation>
    </message>
</context>
<context>
    <name>KeyCard</name>
    <message>
        <source>Last key</source>
        <translation>Última tecla</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Ninguna todavía</translation>
    </message>
    <message>
        <source>Key %1</source>
        <translation>Tecla %1</translation>
    </message>
    <message>
        <source>held, %1×</source>
        <translation>mantenida, %1×</translation>
    </message>
</context>
<context>
    <name>LineLogModel</name>
    <message>
        <source>Time, s</source>
        <translation>Tiempo, s</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bytes</translation>
    </message>
</context>
<context>
    <name>LinePage</name>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Línea %1</translation>
    </message>
    <message>
        <source>Packages: %1, %2 a second</source>
        <translation>Paquetes: %1, %2 por segundo</translation>
    </message>
    <message>
        <source>Last package: %1</source>
        <translation>Último paquete: %1</translation>
    </message>
    <message>
        <source>Acknowledged in: %1</source>
        <translation>Confirmado en: %1</translation>
    </message>
    <message>
        <source>Bad checksums: %1</source>
        <translation>Sumas de control erróneas: %1</translation>
    </message>
    <message>
        <source>Skipped bytes: %1</source>
        <translation>Bytes omitidos: %1</translation>
    </message>
    <message>
        <source>Repetitions: %1</source>
        <translation>Repeticiones: %1</translation>
    </message>
    <message>
        <source>Say hello</source>
        <translation>Saludar</translation>
    </message>
    <message>
        <source>Sends the box the ready command again</source>
        <translation>Envía de nuevo a la caja el comando de listo</translation>
    </message>
    <message>
        <source>Save 60 s</source>
        <translation>Guardar 60 s</translation>
    </message>
    <message>
        <source>Line log</source>
        <translation>Registro de línea</translation>
    </message>
    <message>
        <source>Bytes to look for: 2e 21</source>
        <translation>Bytes que buscar: 2e 21</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
</context>
<context>
    <name>LineStatus</name>
    <message>
        <source>the serial library in use tells nothing</source>
        <translation>la biblioteca serie en uso no informa</translation>
    </message>
    <message>
        <source>the unit has opened no line</source>
        <translation>la unidad no ha abierto ninguna línea</translation>
    </message>
    <message>
        <source>no such device</source>
        <translation>no existe el dispositivo</translation>
    </message>
    <message>
        <source>no permission</source>
        <translation>sin permiso</translation>
    </message>
    <message>
        <source>no permission: join the group %1</source>
        <translation>sin permiso: únase al grupo %1</translation>
    </message>
    <message>
        <source>in use by another process</source>
        <translation>en uso por otro proceso</translation>
    </message>
    <message>
        <source>in use by %1</source>
        <translation>en uso por %1</translation>
    </message>
    <message>
        <source>no serial device</source>
        <translation>no es un puerto serie</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>no se puede abrir: %1</translation>
    </message>
    <message>
        <source>line lost</source>
        <translation>línea perdida</translation>
    </message>
    <message>
        <source>bytes but no packages: other baud rate?</source>
        <translation>bytes pero ningún paquete: ¿otra velocidad?</translation>
    </message>
    <message>
        <source>waiting for the box&apos;s first word</source>
        <translation>esperando la primera palabra de la caja</translation>
    </message>
    <message>
        <source>talking</source>
        <translation>en comunicación</translation>
    </message>
    <message>
        <source>silent for %1 s</source>
        <translation>en silencio desde hace %1 s</translation>
    </message>
    <message>
        <source>unit too slow: box repeats</source>
        <translation>unidad demasiado lenta: la caja repite</translation>
    </message>
    <message>
        <source>box stopped</source>
        <translation>caja detenida</translation>
    </message>
    <message>
        <source>box silent by order</source>
        <translation>caja callada por orden</translation>
    </message>
</context>
<context>
    <name>LineStrip</name>
    <message>
        <source>Save the last 60 s</source>
        <translation>Guardar los últimos 60 s</translation>
    </message>
</context>
<context>
    <name>LineWords</name>
    <message>
        <source>%1 packages/s</source>
        <translation>%1 paquetes/s</translation>
    </message>
    <message>
        <source>%1 bad</source>
        <translation>erróneos: %1</translation>
    </message>
    <message>
        <source>%1 bytes skipped</source>
        <translation>bytes omitidos: %1</translation>
    </message>
    <message>
        <source>%1 repeated</source>
        <translation>repetidos: %1</translation>
    </message>
    <message>
        <source>answered in %1</source>
        <translation>confirmado en %1</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nunca</translation>
    </message>
    <message>
        <source>%1 s ago</source>
        <translation>hace %1 s</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>ninguno todavía</translation>
    </message>
</context>
<context>
    <name>ObservationWords</name>
    <message>
        <source>Source</source>
        <translation>Fuente</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Ajuste</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sonido</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Reloj</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Cámara</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Aplicación</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>Radio</source>
        <translation>Radio</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Música</translation>
    </message>
    <message>
        <source>Bluetooth</source>
        <translation>Bluetooth</translation>
    </message>
    <message>
        <source>another one</source>
        <translation>otra</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguna</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Car</source>
        <translation>Vehículo</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Caja</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
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
        <translation>Música USB</translation>
    </message>
    <message>
        <source>Bluetooth</source>
        <translation>Bluetooth</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>Navegación</translation>
    </message>
    <message>
        <source>In a call</source>
        <translation>En llamada</translation>
    </message>
    <message>
        <source>Listening …</source>
        <translation>Escuchando…</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Silencio</translation>
    </message>
    <message>
        <source>Volume %1</source>
        <translation>Volumen %1</translation>
    </message>
    <message>
        <source>Track %1</source>
        <translation>Pista %1</translation>
    </message>
    <message>
        <source>Plays</source>
        <translation>Reproduce</translation>
    </message>
    <message>
        <source>Pauses</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>No call</source>
        <translation>Sin llamada</translation>
    </message>
    <message>
        <source>For the window in front</source>
        <translation>Para la ventana delantera</translation>
    </message>
    <message>
        <source>No effect on the desk</source>
        <translation>Aquí sin efecto</translation>
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
        <translation>Silencio</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Rebobinar</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avanzar</translation>
    </message>
    <message>
        <source>Previous track</source>
        <translation>Pista anterior</translation>
    </message>
    <message>
        <source>Next track</source>
        <translation>Pista siguiente</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Play/pause</source>
        <translation>Reproducir/pausa</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Voz</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Llamar</translation>
    </message>
    <message>
        <source>Hang up</source>
        <translation>Colgar</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Abajo</translation>
    </message>
</context>
<context>
    <name>UnitPage</name>
    <message>
        <source>Folder behind the disk</source>
        <translation>Carpeta del disco</translation>
    </message>
    <message>
        <source>USB disk</source>
        <translation>Disco USB</translation>
    </message>
    <message>
        <source>Choose the folder that is on the disk.</source>
        <translation>Elija la carpeta que contiene el disco.</translation>
    </message>
    <message>
        <source>Plugged in: %1</source>
        <translation>Conectado: %1</translation>
    </message>
    <message>
        <source>Pulled out: %1</source>
        <translation>Extraído: %1</translation>
    </message>
    <message>
        <source>Folder ...</source>
        <translation>Carpeta…</translation>
    </message>
    <message>
        <source>Pull out</source>
        <translation>Extraer</translation>
    </message>
    <message>
        <source>Put in</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
</context>
<context>
    <name>UnitShell</name>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Application %1</source>
        <translation>Aplicación %1</translation>
    </message>
</context>
</TS>

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
    <name>BitGrid</name>
    <message>
        <source>The bits are being tried out ...</source>
        <translation>Se están probando los bits...</translation>
    </message>
    <message>
        <source>The bits could not be tried out.</source>
        <translation>No se han podido probar los bits.</translation>
    </message>
    <message>
        <source>Bits of a package</source>
        <translation>Bits de un paquete</translation>
    </message>
    <message>
        <source>Package 0x%1 of %2</source>
        <translation>Paquete 0x%1 de %2</translation>
    </message>
</context>
<context>
    <name>BitGridPicture</name>
    <message>
        <source>no effect</source>
        <translation>sin efecto</translation>
    </message>
    <message>
        <source>only together with %1</source>
        <translation>solo junto con %1</translation>
    </message>
    <message>
        <source>depends on what the car said before</source>
        <translation>depende de lo que dijo antes el coche</translation>
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
    <name>FilterBar</name>
    <message>
        <source>Keep the filter</source>
        <translation>Guardar el filtro</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filtro: %1</translation>
    </message>
    <message>
        <source>All words must fit: cmd=0x28, cmd=climate, dir=in, bad, changed, explained, call=set*, screen=Air*, hex=2e28, d2=0x1f, d0.6=1, ack&gt;20, ack=none, t&lt;9.5; ! turns a word round</source>
        <translation>Deben cumplirse todas las palabras: cmd=0x28, cmd=climate, dir=in, bad, changed, explained, call=set*, screen=Air*, hex=2e28, d2=0x1f, d0.6=1, ack&gt;20, ack=none, t&lt;9.5; ! invierte una palabra</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Keeps this filter under a name</source>
        <translation>Guarda este filtro con un nombre</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Olvidar</translation>
    </message>
    <message>
        <source>Forgets the kept filter</source>
        <translation>Olvida el filtro guardado</translation>
    </message>
    <message>
        <source>Unexplained</source>
        <translation>Sin explicar</translation>
    </message>
    <message>
        <source>Hides what is explained</source>
        <translation>Oculta lo que tiene explicación</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Cambios</translation>
    </message>
    <message>
        <source>Hides packages that are as the one of their command before</source>
        <translation>Oculta los paquetes iguales al anterior de su comando</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>InspectionFilter</name>
    <message>
        <source>a command is at most 0xff, not %1</source>
        <translation>un comando llega hasta 0xff, no %1</translation>
    </message>
    <message>
        <source>dir= takes in or out, not &apos;%1&apos;</source>
        <translation>dir= admite in u out, no &apos;%1&apos;</translation>
    </message>
    <message>
        <source>hex= takes pairs of hexadecimal digits, not &apos;%1&apos;</source>
        <translation>hex= admite pares de cifras hexadecimales, no &apos;%1&apos;</translation>
    </message>
    <message>
        <source>&apos;%1&apos; takes a byte</source>
        <translation>&apos;%1&apos; admite un byte</translation>
    </message>
    <message>
        <source>&apos;%1&apos; takes a bit 0 to 7 and 0 or 1</source>
        <translation>&apos;%1&apos; admite un bit de 0 a 7 y 0 o 1</translation>
    </message>
    <message>
        <source>ack takes &lt; or &gt; and milliseconds, or =none</source>
        <translation>ack admite &lt; o &gt; y milisegundos, o =none</translation>
    </message>
    <message>
        <source>t takes &lt; or &gt; and seconds</source>
        <translation>t admite &lt; o &gt; y segundos</translation>
    </message>
    <message>
        <source>&apos;%1&apos; lacks its value</source>
        <translation>a &apos;%1&apos; le falta su valor</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no word of a filter; there are %2</source>
        <translation>&apos;%1&apos; no es palabra de un filtro; hay %2</translation>
    </message>
</context>
<context>
    <name>InspectionModel</name>
    <message>
        <source>Time, s</source>
        <translation>Tiempo, s</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>Paquete</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Datos</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>Respuesta</translation>
    </message>
    <message>
        <source>Caused</source>
        <translation>Efecto</translation>
    </message>
    <message>
        <source>BAD %1</source>
        <translation>MALO %1</translation>
    </message>
    <message>
        <source>NO PACKAGE</source>
        <translation>NO ES UN PAQUETE</translation>
    </message>
    <message>
        <source>LINE</source>
        <translation>LÍNEA</translation>
    </message>
    <message>
        <source>CALL</source>
        <translation>LLAMADA</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>TECLA</translation>
    </message>
</context>
<context>
    <name>InspectorView</name>
    <message>
        <source>Choose a package to see all of it.</source>
        <translation>Elija un paquete para verlo entero.</translation>
    </message>
    <message>
        <source>answered in %1</source>
        <translation>respondido en %1</translation>
    </message>
    <message>
        <source>Further calls: %1</source>
        <translation>Más llamadas: %1</translation>
    </message>
    <message>
        <source>The unit made nothing of it</source>
        <translation>La unidad no hizo nada con él</translation>
    </message>
    <message>
        <source>The unit did not take it</source>
        <translation>La unidad no lo aceptó</translation>
    </message>
    <message>
        <source>Calls: %1</source>
        <translation>Llamadas: %1</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>No se encontró nada</translation>
    </message>
    <message>
        <source>Search: 2e 21, setTemperature, climate</source>
        <translation>Buscar: 2e 21, setTemperature, climate</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Bits</source>
        <translation>Bits</translation>
    </message>
    <message>
        <source>What each bit of the chosen package does</source>
        <translation>Qué hace cada bit del paquete elegido</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>Calls and rates as well (F8)</source>
        <translation>Con llamadas y frecuencias (F8)</translation>
    </message>
    <message>
        <source>Calls (a click goes to the package)</source>
        <translation>Llamadas (un clic lleva al paquete)</translation>
    </message>
    <message>
        <source>Commands (a double click filters)</source>
        <translation>Comandos (un doble clic filtra)</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>per s</source>
        <translation>por s</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Cambios</translation>
    </message>
    <message>
        <source>Bad</source>
        <translation>Malos</translation>
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
    <name>KeyTesterCard</name>
    <message>
        <source>%1 %2 has been down for %3 s and does not come up</source>
        <translation>%1 %2 lleva pulsada %3 s y no se suelta</translation>
    </message>
    <message>
        <source>no press</source>
        <translation>sin pulsación</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nada</translation>
    </message>
    <message>
        <source>Steering wheel</source>
        <translation>Volante</translation>
    </message>
    <message>
        <source>Car&apos;s panel</source>
        <translation>Panel del coche</translation>
    </message>
    <message>
        <source>Knob</source>
        <translation>Mando giratorio</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Pressed at %1 s, held %2 times</source>
        <translation>Pulsada a los %1 s, mantenida %2 veces</translation>
    </message>
    <message>
        <source>Still down</source>
        <translation>Sigue pulsada</translation>
    </message>
    <message>
        <source>Came up at %1 s</source>
        <translation>Soltada a los %1 s</translation>
    </message>
    <message>
        <source>Becomes: %1</source>
        <translation>Pasa a ser: %1</translation>
    </message>
    <message>
        <source>After redefinition: %1</source>
        <translation>Tras redefinir: %1</translation>
    </message>
    <message>
        <source>the same</source>
        <translation>la misma</translation>
    </message>
    <message>
        <source>Key tester</source>
        <translation>Prueba de teclas</translation>
    </message>
    <message>
        <source>Press each key of the car, or of the unit, once: here stands what becomes of it.</source>
        <translation>Pulse una vez cada tecla del coche o de la unidad: aquí aparece en qué se convierte.</translation>
    </message>
    <message>
        <source>Copy as a key table</source>
        <translation>Copiar como tabla de teclas</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Tecla</translation>
    </message>
    <message>
        <source>Pressed, s</source>
        <translation>Pulsada, s</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Becomes</source>
        <translation>Pasa a</translation>
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
        <source>Inspector</source>
        <translation>Inspector</translation>
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
    <message>
        <source>line lost: was the adapter pulled out?</source>
        <translation>línea perdida: ¿se ha desconectado el adaptador?</translation>
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
    <name>ReplayCard</name>
    <message>
        <source>%1 s of the log, %2 packages</source>
        <translation>%1 s del registro, %2 paquetes</translation>
    </message>
    <message>
        <source>Replay: at its end</source>
        <translation>Reproducción: al final</translation>
    </message>
    <message>
        <source>Replay: paused</source>
        <translation>Reproducción: en pausa</translation>
    </message>
    <message>
        <source>Replay</source>
        <translation>Reproducción</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Seguir</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>Barra espaciadora</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Paso</translation>
    </message>
    <message>
        <source>Plays the next bytes and pauses (full stop)</source>
        <translation>Reproduce los bytes siguientes y se detiene (punto)</translation>
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

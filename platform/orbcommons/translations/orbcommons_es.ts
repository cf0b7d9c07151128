<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
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
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
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
        <translation>Música</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Teléfono</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>Navegación</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>CAN information</source>
        <translation>Información CAN</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>Update available</source>
        <translation>Actualización disponible</translation>
    </message>
    <message>
        <source>Updating</source>
        <translation>Actualizando</translation>
    </message>
    <message>
        <source>Update has stalled</source>
        <translation>Actualización detenida</translation>
    </message>
    <message>
        <source>Update finished</source>
        <translation>Actualización terminada</translation>
    </message>
    <message>
        <source>Update failed</source>
        <translation>Actualización fallida</translation>
    </message>
    <message>
        <source>Do not remove the disk and do not switch off the ignition.</source>
        <translation>No retire el disco ni desconecte el encendido.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>New firmware for the CAN decoder was found on the disk. Update now?</source>
        <translation>Se ha encontrado en el disco un nuevo firmware para el decodificador CAN. ¿Actualizar ahora?</translation>
    </message>
    <message>
        <source>New firmware was found on the disk. Update now?</source>
        <translation>Se ha encontrado en el disco un nuevo firmware. ¿Actualizar ahora?</translation>
    </message>
    <message>
        <source>The new firmware is being transferred.</source>
        <translation>Se está transfiriendo el nuevo firmware.</translation>
    </message>
    <message>
        <source>No more data is being asked for. Wait a minute; if it does not go on, try again.</source>
        <translation>El decodificador ya no pide datos. Espere un minuto; si no continúa, vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>All data was transferred. The disk can be removed.</source>
        <translation>Se han transferido todos los datos. Puede retirar el disco.</translation>
    </message>
    <message>
        <source>The update was interrupted (code %1). Check the disk.</source>
        <translation>La actualización se ha interrumpido (código %1). Compruebe el disco.</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>AirConditionDlg</name>
    <message>
        <source>OFF</source>
        <translation>ВЫКЛ.</translation>
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
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>OrbCommons</name>
    <message>
        <source>Radio</source>
        <translation>Радио</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Музыка</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Видео</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Телефон</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>Навигация</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>CAN information</source>
        <translation>Данные CAN</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>Update available</source>
        <translation>Доступно обновление</translation>
    </message>
    <message>
        <source>Updating</source>
        <translation>Идёт обновление</translation>
    </message>
    <message>
        <source>Update has stalled</source>
        <translation>Обновление остановилось</translation>
    </message>
    <message>
        <source>Update finished</source>
        <translation>Обновление завершено</translation>
    </message>
    <message>
        <source>Update failed</source>
        <translation>Обновление не удалось</translation>
    </message>
    <message>
        <source>Do not remove the disk and do not switch off the ignition.</source>
        <translation>Не извлекайте диск и не выключайте зажигание.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Позже</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>New firmware for the CAN decoder was found on the disk. Update now?</source>
        <translation>На диске найдена новая прошивка декодера CAN. Обновить сейчас?</translation>
    </message>
    <message>
        <source>New firmware was found on the disk. Update now?</source>
        <translation>На диске найдена новая прошивка. Обновить сейчас?</translation>
    </message>
    <message>
        <source>The new firmware is being transferred.</source>
        <translation>Передаётся новая прошивка.</translation>
    </message>
    <message>
        <source>No more data is being asked for. Wait a minute; if it does not go on, try again.</source>
        <translation>Данные больше не запрашиваются. Подождите минуту; если обновление не продолжится, повторите.</translation>
    </message>
    <message>
        <source>All data was transferred. The disk can be removed.</source>
        <translation>Все данные переданы. Диск можно извлечь.</translation>
    </message>
    <message>
        <source>The update was interrupted (code %1). Check the disk.</source>
        <translation>Обновление прервано (код %1). Проверьте диск.</translation>
    </message>
</context>
</TS>

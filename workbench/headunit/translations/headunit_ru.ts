<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>AppPage</name>
    <message>
        <source>This picture comes from the car.</source>
        <translation>Это изображение передаёт автомобиль.</translation>
    </message>
</context>
<context>
    <name>BitGrid</name>
    <message>
        <source>The bits are being tried out ...</source>
        <translation>Биты проверяются...</translation>
    </message>
    <message>
        <source>The bits could not be tried out.</source>
        <translation>Не удалось проверить биты.</translation>
    </message>
    <message>
        <source>Bits of a package</source>
        <translation>Биты пакета</translation>
    </message>
    <message>
        <source>Package 0x%1 of %2</source>
        <translation>Пакет 0x%1, %2</translation>
    </message>
</context>
<context>
    <name>BitGridPicture</name>
    <message>
        <source>no effect</source>
        <translation>без действия</translation>
    </message>
    <message>
        <source>only together with %1</source>
        <translation>только вместе с %1</translation>
    </message>
    <message>
        <source>depends on what the car said before</source>
        <translation>зависит от сказанного раньше</translation>
    </message>
</context>
<context>
    <name>BoxKeysPage</name>
    <message>
        <source>Keys on the steering wheel</source>
        <translation>Кнопки на руле</translation>
    </message>
    <message>
        <source>Keys on the car&apos;s panel</source>
        <translation>Кнопки на панели автомобиля</translation>
    </message>
    <message>
        <source>This car has no keys</source>
        <translation>У этого автомобиля нет кнопок</translation>
    </message>
    <message>
        <source>Knobs</source>
        <translation>Поворотные ручки</translation>
    </message>
</context>
<context>
    <name>BoxPage</name>
    <message>
        <source>Scenario</source>
        <translation>Сценарий</translation>
    </message>
    <message>
        <source>Scenarios (*.scn)</source>
        <translation>Сценарии (*.scn)</translation>
    </message>
    <message>
        <source>Waits for the unit&apos;s ready</source>
        <translation>Ждёт готовности устройства</translation>
    </message>
    <message>
        <source>Talks with the unit</source>
        <translation>Обменивается с устройством</translation>
    </message>
    <message>
        <source>Silent: the unit did not acknowledge</source>
        <translation>Молчит: устройство не подтвердило</translation>
    </message>
    <message>
        <source>The unit has not opened the port</source>
        <translation>Устройство не открыло порт</translation>
    </message>
    <message>
        <source>Nothing yet</source>
        <translation>Пока ничего</translation>
    </message>
    <message>
        <source>Box at %1</source>
        <translation>Блок на %1</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Запустить</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Остановить</translation>
    </message>
    <message>
        <source>Open ...</source>
        <translation>Открыть…</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Воспроизвести</translation>
    </message>
    <message>
        <source>None chosen</source>
        <translation>Не выбран</translation>
    </message>
    <message>
        <source>%1 plays</source>
        <translation>Идёт %1</translation>
    </message>
    <message>
        <source>Line faults</source>
        <translation>Сбои линии</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>Шум</translation>
    </message>
    <message>
        <source>Cut a package</source>
        <translation>Обрезать пакет</translation>
    </message>
    <message>
        <source>Corrupt a package</source>
        <translation>Исказить пакет</translation>
    </message>
    <message>
        <source>Silence, 3 s</source>
        <translation>Тишина, 3 с</translation>
    </message>
    <message>
        <source>What the unit told the box</source>
        <translation>Что устройство сообщило блоку</translation>
    </message>
    <message>
        <source>Line log</source>
        <translation>Журнал линии</translation>
    </message>
    <message>
        <source>Flip a bit</source>
        <translation>Инвертировать бит</translation>
    </message>
    <message>
        <source>Lose a byte</source>
        <translation>Потерять байт</translation>
    </message>
    <message>
        <source>Double a byte</source>
        <translation>Удвоить байт</translation>
    </message>
    <message>
        <source>Wrong length</source>
        <translation>Неверная длина</translation>
    </message>
    <message>
        <source>Stall, 300 ms</source>
        <translation>Задержка, 300 мс</translation>
    </message>
    <message>
        <source>Garbage</source>
        <translation>Мусор</translation>
    </message>
    <message>
        <source>Late answer</source>
        <translation>Поздний ответ</translation>
    </message>
    <message>
        <source>Cut the update</source>
        <translation>Прервать обновление</translation>
    </message>
    <message>
        <source>Pull the line</source>
        <translation>Отключить линию</translation>
    </message>
    <message>
        <source>Plug it in</source>
        <translation>Подключить</translation>
    </message>
    <message>
        <source>Bad line</source>
        <translation>Плохая линия</translation>
    </message>
    <message>
        <source>Good line</source>
        <translation>Хорошая линия</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Остановлен</translation>
    </message>
    <message>
        <source>Silent by order</source>
        <translation>Молчит по команде</translation>
    </message>
</context>
<context>
    <name>CarPage</name>
    <message>
        <source>Left</source>
        <translation>Слева</translation>
    </message>
    <message>
        <source>Mid left</source>
        <translation>В центре слева</translation>
    </message>
    <message>
        <source>Mid right</source>
        <translation>В центре справа</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Справа</translation>
    </message>
</context>
<context>
    <name>CarPicker</name>
    <message>
        <source>Which car?</source>
        <translation>Какой автомобиль?</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Virtual box</source>
        <translation>Виртуальный блок</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Запустить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>The decoder that is fitted</source>
        <translation>Установленный декодер</translation>
    </message>
    <message>
        <source>Its line: a virtual box, or a serial device of this computer</source>
        <translation>Его линия: виртуальный блок или последовательный порт этого компьютера</translation>
    </message>
    <message>
        <source>%1 (no virtual box)</source>
        <translation>%1 (нет виртуального блока)</translation>
    </message>
</context>
<context>
    <name>CarView</name>
    <message>
        <source>Front left door open</source>
        <translation>Открыта передняя левая дверь</translation>
    </message>
    <message>
        <source>Front right door open</source>
        <translation>Открыта передняя правая дверь</translation>
    </message>
    <message>
        <source>Rear left door open</source>
        <translation>Открыта задняя левая дверь</translation>
    </message>
    <message>
        <source>Rear right door open</source>
        <translation>Открыта задняя правая дверь</translation>
    </message>
    <message>
        <source>Doors open</source>
        <translation>Двери открыты</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>All doors closed</source>
        <translation>Все двери закрыты</translation>
    </message>
    <message>
        <source>Steering %1°</source>
        <translation>Руль %1°</translation>
    </message>
    <message>
        <source>Doors not reported</source>
        <translation>Нет данных о дверях</translation>
    </message>
    <message>
        <source>The car has reported nothing yet</source>
        <translation>Автомобиль ещё ничего не сообщил</translation>
    </message>
</context>
<context>
    <name>DeskWindow</name>
    <message>
        <source>Head unit on the desk</source>
        <translation>Головное устройство на столе</translation>
    </message>
    <message>
        <source>Not sure: %1</source>
        <translation>Не точно: %1</translation>
    </message>
    <message>
        <source>Hello said: the box was sent the ready command</source>
        <translation>Приветствие отправлено: блок получил команду готовности</translation>
    </message>
    <message>
        <source>There is no open line to say hello on</source>
        <translation>Нет открытой линии для приветствия</translation>
    </message>
    <message>
        <source>Saved the last 60 s: %1</source>
        <translation>Последние 60 с сохранены: %1</translation>
    </message>
    <message>
        <source>Show the panel (F9)</source>
        <translation>Показать панель (F9)</translation>
    </message>
    <message>
        <source>Fold the panel away (F9)</source>
        <translation>Свернуть панель (F9)</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Keep the filter</source>
        <translation>Сохранить фильтр</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Название:</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Фильтр: %1</translation>
    </message>
    <message>
        <source>All words must fit: cmd=0x28, cmd=climate, dir=in, bad, changed, explained, call=set*, screen=Air*, hex=2e28, d2=0x1f, d0.6=1, ack&gt;20, ack=none, t&lt;9.5; ! turns a word round</source>
        <translation>Должны подходить все слова: cmd=0x28, cmd=climate, dir=in, bad, changed, explained, call=set*, screen=Air*, hex=2e28, d2=0x1f, d0.6=1, ack&gt;20, ack=none, t&lt;9.5; ! обращает слово</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Keeps this filter under a name</source>
        <translation>Сохраняет этот фильтр под названием</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Забыть</translation>
    </message>
    <message>
        <source>Forgets the kept filter</source>
        <translation>Забывает сохранённый фильтр</translation>
    </message>
    <message>
        <source>Unexplained</source>
        <translation>Неясные</translation>
    </message>
    <message>
        <source>Hides what is explained</source>
        <translation>Скрывает то, что объяснено</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Изменения</translation>
    </message>
    <message>
        <source>Hides packages that are as the one of their command before</source>
        <translation>Скрывает пакеты, равные предыдущему той же команды</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>InspectionFilter</name>
    <message>
        <source>a command is at most 0xff, not %1</source>
        <translation>команда не больше 0xff, а не %1</translation>
    </message>
    <message>
        <source>dir= takes in or out, not &apos;%1&apos;</source>
        <translation>dir= принимает in или out, а не &apos;%1&apos;</translation>
    </message>
    <message>
        <source>hex= takes pairs of hexadecimal digits, not &apos;%1&apos;</source>
        <translation>hex= принимает пары шестнадцатеричных цифр, а не &apos;%1&apos;</translation>
    </message>
    <message>
        <source>&apos;%1&apos; takes a byte</source>
        <translation>&apos;%1&apos; принимает один байт</translation>
    </message>
    <message>
        <source>&apos;%1&apos; takes a bit 0 to 7 and 0 or 1</source>
        <translation>&apos;%1&apos; принимает бит от 0 до 7 и 0 или 1</translation>
    </message>
    <message>
        <source>ack takes &lt; or &gt; and milliseconds, or =none</source>
        <translation>ack принимает &lt; или &gt; и миллисекунды, либо =none</translation>
    </message>
    <message>
        <source>t takes &lt; or &gt; and seconds</source>
        <translation>t принимает &lt; или &gt; и секунды</translation>
    </message>
    <message>
        <source>&apos;%1&apos; lacks its value</source>
        <translation>у &apos;%1&apos; нет значения</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no word of a filter; there are %2</source>
        <translation>&apos;%1&apos; не слово фильтра; есть %2</translation>
    </message>
</context>
<context>
    <name>InspectionModel</name>
    <message>
        <source>Time, s</source>
        <translation>Время, с</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>Пакет</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Данные</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>Ответ</translation>
    </message>
    <message>
        <source>Caused</source>
        <translation>Вызвано</translation>
    </message>
    <message>
        <source>BAD %1</source>
        <translation>ПЛОХОЙ %1</translation>
    </message>
    <message>
        <source>NO PACKAGE</source>
        <translation>НЕ ПАКЕТ</translation>
    </message>
    <message>
        <source>LINE</source>
        <translation>ЛИНИЯ</translation>
    </message>
    <message>
        <source>CALL</source>
        <translation>ВЫЗОВ</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>КНОПКА</translation>
    </message>
</context>
<context>
    <name>InspectorView</name>
    <message>
        <source>Choose a package to see all of it.</source>
        <translation>Выберите пакет, чтобы увидеть его целиком.</translation>
    </message>
    <message>
        <source>answered in %1</source>
        <translation>ответ за %1</translation>
    </message>
    <message>
        <source>Further calls: %1</source>
        <translation>Ещё вызовов: %1</translation>
    </message>
    <message>
        <source>The unit made nothing of it</source>
        <translation>Устройство ничего с ним не сделало</translation>
    </message>
    <message>
        <source>The unit did not take it</source>
        <translation>Устройство его не приняло</translation>
    </message>
    <message>
        <source>Calls: %1</source>
        <translation>Вызовов: %1</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Ничего не найдено</translation>
    </message>
    <message>
        <source>Search: 2e 21, setTemperature, climate</source>
        <translation>Поиск: 2e 21, setTemperature, climate</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копия</translation>
    </message>
    <message>
        <source>Bits</source>
        <translation>Биты</translation>
    </message>
    <message>
        <source>What each bit of the chosen package does</source>
        <translation>Что делает каждый бит выбранного пакета</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Окно</translation>
    </message>
    <message>
        <source>Calls and rates as well (F8)</source>
        <translation>Также вызовы и частоты (F8)</translation>
    </message>
    <message>
        <source>Calls (a click goes to the package)</source>
        <translation>Вызовы (щелчок ведёт к пакету)</translation>
    </message>
    <message>
        <source>Commands (a double click filters)</source>
        <translation>Команды (двойной щелчок фильтрует)</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Команда</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Число</translation>
    </message>
    <message>
        <source>per s</source>
        <translation>в с</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Изменения</translation>
    </message>
    <message>
        <source>Bad</source>
        <translation>Плохие</translation>
    </message>
</context>
<context>
    <name>KeyCard</name>
    <message>
        <source>Last key</source>
        <translation>Последняя кнопка</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Пока нет</translation>
    </message>
    <message>
        <source>Key %1</source>
        <translation>Кнопка %1</translation>
    </message>
    <message>
        <source>held, %1×</source>
        <translation>удержание, %1×</translation>
    </message>
</context>
<context>
    <name>KeyTesterCard</name>
    <message>
        <source>%1 %2 has been down for %3 s and does not come up</source>
        <translation>%1 %2 нажата уже %3 с и не отпускается</translation>
    </message>
    <message>
        <source>no press</source>
        <translation>без нажатия</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 мс</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>ничего</translation>
    </message>
    <message>
        <source>Steering wheel</source>
        <translation>Руль</translation>
    </message>
    <message>
        <source>Car&apos;s panel</source>
        <translation>Панель машины</translation>
    </message>
    <message>
        <source>Knob</source>
        <translation>Ручка</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>ГУ</translation>
    </message>
    <message>
        <source>Pressed at %1 s, held %2 times</source>
        <translation>Нажата на %1 с, повторов: %2</translation>
    </message>
    <message>
        <source>Still down</source>
        <translation>Ещё нажата</translation>
    </message>
    <message>
        <source>Came up at %1 s</source>
        <translation>Отпущена на %1 с</translation>
    </message>
    <message>
        <source>Becomes: %1</source>
        <translation>Становится: %1</translation>
    </message>
    <message>
        <source>After redefinition: %1</source>
        <translation>После переназначения: %1</translation>
    </message>
    <message>
        <source>the same</source>
        <translation>та же</translation>
    </message>
    <message>
        <source>Key tester</source>
        <translation>Проверка клавиш</translation>
    </message>
    <message>
        <source>Press each key of the car, or of the unit, once: here stands what becomes of it.</source>
        <translation>Нажмите по разу каждую клавишу машины или устройства: здесь видно, чем она становится.</translation>
    </message>
    <message>
        <source>Copy as a key table</source>
        <translation>Копировать как таблицу клавиш</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Клавиша</translation>
    </message>
    <message>
        <source>Pressed, s</source>
        <translation>Нажата, с</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Длилось</translation>
    </message>
    <message>
        <source>Becomes</source>
        <translation>Итог</translation>
    </message>
</context>
<context>
    <name>LinePage</name>
    <message>
        <source>Line</source>
        <translation>Линия</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Линия %1</translation>
    </message>
    <message>
        <source>Packages: %1, %2 a second</source>
        <translation>Пакеты: %1, %2 в секунду</translation>
    </message>
    <message>
        <source>Last package: %1</source>
        <translation>Последний пакет: %1</translation>
    </message>
    <message>
        <source>Acknowledged in: %1</source>
        <translation>Подтверждение за: %1</translation>
    </message>
    <message>
        <source>Bad checksums: %1</source>
        <translation>Неверные контрольные суммы: %1</translation>
    </message>
    <message>
        <source>Skipped bytes: %1</source>
        <translation>Пропущенные байты: %1</translation>
    </message>
    <message>
        <source>Repetitions: %1</source>
        <translation>Повторы: %1</translation>
    </message>
    <message>
        <source>Say hello</source>
        <translation>Приветствие</translation>
    </message>
    <message>
        <source>Sends the box the ready command again</source>
        <translation>Повторно отправляет блоку команду готовности</translation>
    </message>
    <message>
        <source>Save 60 s</source>
        <translation>Сохранить 60 с</translation>
    </message>
    <message>
        <source>Line log</source>
        <translation>Журнал линии</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Инспектор</translation>
    </message>
</context>
<context>
    <name>LineStatus</name>
    <message>
        <source>the serial library in use tells nothing</source>
        <translation>используемая библиотека порта ничего не сообщает</translation>
    </message>
    <message>
        <source>the unit has opened no line</source>
        <translation>устройство не открыло линию</translation>
    </message>
    <message>
        <source>no such device</source>
        <translation>нет такого устройства</translation>
    </message>
    <message>
        <source>no permission</source>
        <translation>нет прав доступа</translation>
    </message>
    <message>
        <source>no permission: join the group %1</source>
        <translation>нет прав доступа: вступите в группу %1</translation>
    </message>
    <message>
        <source>in use by another process</source>
        <translation>занято другим процессом</translation>
    </message>
    <message>
        <source>in use by %1</source>
        <translation>занято: %1</translation>
    </message>
    <message>
        <source>no serial device</source>
        <translation>это не последовательный порт</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>не открывается: %1</translation>
    </message>
    <message>
        <source>bytes but no packages: other baud rate?</source>
        <translation>байты есть, пакетов нет: другая скорость?</translation>
    </message>
    <message>
        <source>waiting for the box&apos;s first word</source>
        <translation>ждёт первого сообщения блока</translation>
    </message>
    <message>
        <source>talking</source>
        <translation>идёт обмен</translation>
    </message>
    <message>
        <source>silent for %1 s</source>
        <translation>молчит %1 с</translation>
    </message>
    <message>
        <source>unit too slow: box repeats</source>
        <translation>устройство не успевает: блок повторяет</translation>
    </message>
    <message>
        <source>box stopped</source>
        <translation>блок остановлен</translation>
    </message>
    <message>
        <source>box silent by order</source>
        <translation>блок молчит по команде</translation>
    </message>
    <message>
        <source>line lost: was the adapter pulled out?</source>
        <translation>линия потеряна: адаптер вынут?</translation>
    </message>
</context>
<context>
    <name>LineStrip</name>
    <message>
        <source>Save the last 60 s</source>
        <translation>Сохранить последние 60 с</translation>
    </message>
</context>
<context>
    <name>LineWords</name>
    <message>
        <source>%1 packages/s</source>
        <translation>%1 пакетов/с</translation>
    </message>
    <message>
        <source>%1 bad</source>
        <translation>неверных: %1</translation>
    </message>
    <message>
        <source>%1 bytes skipped</source>
        <translation>пропущено байт: %1</translation>
    </message>
    <message>
        <source>%1 repeated</source>
        <translation>повторов: %1</translation>
    </message>
    <message>
        <source>answered in %1</source>
        <translation>ответ за %1</translation>
    </message>
    <message>
        <source>never</source>
        <translation>никогда</translation>
    </message>
    <message>
        <source>%1 s ago</source>
        <translation>%1 с назад</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>пока нет</translation>
    </message>
</context>
<context>
    <name>ObservationWords</name>
    <message>
        <source>Source</source>
        <translation>Источник</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Настройка</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Звук</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Команда</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Часы</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Камера</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Яркость</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Приложение</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Изображение</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Прошивка</translation>
    </message>
    <message>
        <source>Radio</source>
        <translation>Радио</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Музыка</translation>
    </message>
    <message>
        <source>Bluetooth</source>
        <translation>Bluetooth</translation>
    </message>
    <message>
        <source>another one</source>
        <translation>другой</translation>
    </message>
    <message>
        <source>none</source>
        <translation>нет</translation>
    </message>
</context>
<context>
    <name>ReplayCard</name>
    <message>
        <source>%1 s of the log, %2 packages</source>
        <translation>%1 с журнала, пакетов: %2</translation>
    </message>
    <message>
        <source>Replay: at its end</source>
        <translation>Воспроизведение: конец</translation>
    </message>
    <message>
        <source>Replay: paused</source>
        <translation>Воспроизведение: пауза</translation>
    </message>
    <message>
        <source>Replay</source>
        <translation>Воспроизведение</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Дальше</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>Пробел</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Шаг</translation>
    </message>
    <message>
        <source>Plays the next bytes and pauses (full stop)</source>
        <translation>Воспроизводит следующие байты и останавливается (точка)</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Car</source>
        <translation>Авто</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Кнопки</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Блок</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>ГУ</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Линия</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
</context>
<context>
    <name>UnitControls</name>
    <message>
        <source>Radio</source>
        <translation>Радио</translation>
    </message>
    <message>
        <source>USB music</source>
        <translation>Музыка USB</translation>
    </message>
    <message>
        <source>Bluetooth</source>
        <translation>Bluetooth</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>Навигация</translation>
    </message>
    <message>
        <source>In a call</source>
        <translation>Разговор</translation>
    </message>
    <message>
        <source>Listening …</source>
        <translation>Слушаю…</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Без звука</translation>
    </message>
    <message>
        <source>Volume %1</source>
        <translation>Громкость %1</translation>
    </message>
    <message>
        <source>Track %1</source>
        <translation>Дорожка %1</translation>
    </message>
    <message>
        <source>Plays</source>
        <translation>Играет</translation>
    </message>
    <message>
        <source>Pauses</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>No call</source>
        <translation>Нет звонка</translation>
    </message>
    <message>
        <source>For the window in front</source>
        <translation>Для переднего окна</translation>
    </message>
    <message>
        <source>No effect on the desk</source>
        <translation>Здесь не действует</translation>
    </message>
</context>
<context>
    <name>UnitKey</name>
    <message>
        <source>Vol −</source>
        <translation>Тише</translation>
    </message>
    <message>
        <source>Vol +</source>
        <translation>Громче</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Без звука</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Предыдущий</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Следующий</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Перемотка −</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Перемотка +</translation>
    </message>
    <message>
        <source>Previous track</source>
        <translation>Предыдущая дорожка</translation>
    </message>
    <message>
        <source>Next track</source>
        <translation>Следующая дорожка</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Пуск</translation>
    </message>
    <message>
        <source>Play/pause</source>
        <translation>Пуск/пауза</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Режим</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Голос</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Вызов</translation>
    </message>
    <message>
        <source>Hang up</source>
        <translation>Завершить</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Главная</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Ввод</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Влево</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Вправо</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Вверх</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Вниз</translation>
    </message>
</context>
<context>
    <name>UnitPage</name>
    <message>
        <source>Folder behind the disk</source>
        <translation>Папка диска</translation>
    </message>
    <message>
        <source>USB disk</source>
        <translation>USB-диск</translation>
    </message>
    <message>
        <source>Choose the folder that is on the disk.</source>
        <translation>Выберите папку, которая будет на диске.</translation>
    </message>
    <message>
        <source>Plugged in: %1</source>
        <translation>Подключён: %1</translation>
    </message>
    <message>
        <source>Pulled out: %1</source>
        <translation>Извлечён: %1</translation>
    </message>
    <message>
        <source>Folder ...</source>
        <translation>Папка…</translation>
    </message>
    <message>
        <source>Pull out</source>
        <translation>Извлечь</translation>
    </message>
    <message>
        <source>Put in</source>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
</context>
<context>
    <name>UnitShell</name>
    <message>
        <source>Home</source>
        <translation>Главная</translation>
    </message>
    <message>
        <source>Application %1</source>
        <translation>Приложение %1</translation>
    </message>
</context>
</TS>

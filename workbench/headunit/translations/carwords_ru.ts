<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>CarWords</name>
    <message>
        <source>360 view</source>
        <translation>Обзор 360°</translation>
    </message>
    <message>
        <source>A/C</source>
        <translation>A/C</translation>
    </message>
    <message>
        <source>A/C max</source>
        <translation>A/C макс.</translation>
    </message>
    <message>
        <source>Activated</source>
        <translation>Включено</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Активно</translation>
    </message>
    <message>
        <source>Advance warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Все</translation>
    </message>
    <message>
        <source>Amplifier</source>
        <translation>Усилитель</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Угол</translation>
    </message>
    <message>
        <source>Angled</source>
        <translation>Под углом</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Приложение</translation>
    </message>
    <message>
        <source>Application none</source>
        <translation>Нет приложения</translation>
    </message>
    <message>
        <source>Arrows</source>
        <translation>Стрелки</translation>
    </message>
    <message>
        <source>Assist</source>
        <translation>Помощь</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Авто</translation>
    </message>
    <message>
        <source>Auto compressor</source>
        <translation>Автокомпрессор</translation>
    </message>
    <message>
        <source>Auto heating driver</source>
        <translation>Автообогрев водителя</translation>
    </message>
    <message>
        <source>Auto heating passenger</source>
        <translation>Автообогрев пассажира</translation>
    </message>
    <message>
        <source>Auto lock</source>
        <translation>Автозапирание</translation>
    </message>
    <message>
        <source>Auto recirculation</source>
        <translation>Авторециркуляция</translation>
    </message>
    <message>
        <source>Auto unlock</source>
        <translation>Автоотпирание</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Автоматически</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Среднее</translation>
    </message>
    <message>
        <source>Average consumption</source>
        <translation>Средний расход</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>Средняя скорость</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Backlight</source>
        <translation>Подсветка</translation>
    </message>
    <message>
        <source>Backwards</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Баланс</translation>
    </message>
    <message>
        <source>Band</source>
        <translation>Диапазон</translation>
    </message>
    <message>
        <source>Bass</source>
        <translation>Низкие</translation>
    </message>
    <message>
        <source>Beyond</source>
        <translation>За пределами</translation>
    </message>
    <message>
        <source>Blind spot</source>
        <translation>Слепая зона</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Синий</translation>
    </message>
    <message>
        <source>Bonnet</source>
        <translation>Капот</translation>
    </message>
    <message>
        <source>Boot</source>
        <translation>Багажник</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Блок</translation>
    </message>
    <message>
        <source>Brake</source>
        <translation>Тормоз</translation>
    </message>
    <message>
        <source>Brightest</source>
        <translation>Самый яркий</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>Кнопки</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Вручную</translation>
    </message>
    <message>
        <source>Cabin</source>
        <translation>Салон</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Вызов</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Камера</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Car type</source>
        <translation>Тип автомобиля</translation>
    </message>
    <message>
        <source>Centerpoint</source>
        <translation>Centerpoint</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Проверить</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Китайский</translation>
    </message>
    <message>
        <source>Circulation</source>
        <translation>Циркуляция</translation>
    </message>
    <message>
        <source>Clean</source>
        <translation>Очистка</translation>
    </message>
    <message>
        <source>Climate</source>
        <translation>Климат</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Близко</translation>
    </message>
    <message>
        <source>Codes</source>
        <translation>Коды</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Цвет</translation>
    </message>
    <message>
        <source>Comfort</source>
        <translation>Комфорт</translation>
    </message>
    <message>
        <source>Comfort curve</source>
        <translation>Кривая комфорта</translation>
    </message>
    <message>
        <source>Coming home</source>
        <translation>Coming Home</translation>
    </message>
    <message>
        <source>Confirmation</source>
        <translation>Подтверждение</translation>
    </message>
    <message>
        <source>Consumers</source>
        <translation>Потребители</translation>
    </message>
    <message>
        <source>Consumption</source>
        <translation>Расход</translation>
    </message>
    <message>
        <source>Convenience</source>
        <translation>Комфорт</translation>
    </message>
    <message>
        <source>Cursor down</source>
        <translation>Курсор вниз</translation>
    </message>
    <message>
        <source>Cursor left</source>
        <translation>Курсор влево</translation>
    </message>
    <message>
        <source>Cursor right</source>
        <translation>Курсор вправо</translation>
    </message>
    <message>
        <source>Cursor up</source>
        <translation>Курсор вверх</translation>
    </message>
    <message>
        <source>Darkest</source>
        <translation>Самый тёмный</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Дни</translation>
    </message>
    <message>
        <source>Daytime</source>
        <translation>Дневной свет</translation>
    </message>
    <message>
        <source>Defrost</source>
        <translation>Обогрев стекла</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Градусы</translation>
    </message>
    <message>
        <source>Digit</source>
        <translation>Цифра</translation>
    </message>
    <message>
        <source>Dipped</source>
        <translation>Ближний свет</translation>
    </message>
    <message>
        <source>Dipped and fog</source>
        <translation>Ближний и противотуманный</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Дисплей</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Расстояние</translation>
    </message>
    <message>
        <source>Distance warning</source>
        <translation>Дистанция</translation>
    </message>
    <message>
        <source>Doors</source>
        <translation>Двери</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Вниз</translation>
    </message>
    <message>
        <source>Down left</source>
        <translation>Вниз влево</translation>
    </message>
    <message>
        <source>Down right</source>
        <translation>Вниз вправо</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Движение</translation>
    </message>
    <message>
        <source>Drive program</source>
        <translation>Программа движения</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>Водитель</translation>
    </message>
    <message>
        <source>Driver alert</source>
        <translation>Усталость</translation>
    </message>
    <message>
        <source>Driver stage</source>
        <translation>Звук для водителя</translation>
    </message>
    <message>
        <source>Dual</source>
        <translation>Две зоны</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Динамически</translation>
    </message>
    <message>
        <source>ESC</source>
        <translation>ESC</translation>
    </message>
    <message>
        <source>Early</source>
        <translation>Рано</translation>
    </message>
    <message>
        <source>Eco</source>
        <translation>Eco</translation>
    </message>
    <message>
        <source>Eco tips</source>
        <translation>Эко-советы</translation>
    </message>
    <message>
        <source>Eject</source>
        <translation>Извлечь</translation>
    </message>
    <message>
        <source>Emergency</source>
        <translation>SOS-вызов</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Двигатель</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Английский</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Ввод</translation>
    </message>
    <message>
        <source>Factory</source>
        <translation>Штатный экран</translation>
    </message>
    <message>
        <source>Fader</source>
        <translation>Фейдер</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>Вентилятор</translation>
    </message>
    <message>
        <source>Fan auto</source>
        <translation>Вентилятор авто</translation>
    </message>
    <message>
        <source>Far</source>
        <translation>Далеко</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Быстро</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>Сбой</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Прошивка</translation>
    </message>
    <message>
        <source>First forward</source>
        <translation>При первом движении вперёд</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Складывать</translation>
    </message>
    <message>
        <source>Follow me</source>
        <translation>Проводить до дома</translation>
    </message>
    <message>
        <source>Footwell</source>
        <translation>Пространство для ног</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Перемотка +</translation>
    </message>
    <message>
        <source>Forward gear</source>
        <translation>Передний ход</translation>
    </message>
    <message>
        <source>Fresh air cycle</source>
        <translation>Цикл свежего воздуха</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Спереди</translation>
    </message>
    <message>
        <source>Front and around</source>
        <translation>Спереди и вокруг</translation>
    </message>
    <message>
        <source>Front and left</source>
        <translation>Спереди и слева</translation>
    </message>
    <message>
        <source>Front and right</source>
        <translation>Спереди и справа</translation>
    </message>
    <message>
        <source>Front left</source>
        <translation>Спереди слева</translation>
    </message>
    <message>
        <source>Front right</source>
        <translation>Спереди справа</translation>
    </message>
    <message>
        <source>Front service</source>
        <translation>Сервис спереди</translation>
    </message>
    <message>
        <source>Front tone</source>
        <translation>Тон спереди</translation>
    </message>
    <message>
        <source>Front volume</source>
        <translation>Громкость спереди</translation>
    </message>
    <message>
        <source>Front window</source>
        <translation>Передние окна</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Полная</translation>
    </message>
    <message>
        <source>Function call</source>
        <translation>Fn вызов</translation>
    </message>
    <message>
        <source>Function forward</source>
        <translation>Fn вперёд</translation>
    </message>
    <message>
        <source>Function hangup</source>
        <translation>Fn отбой</translation>
    </message>
    <message>
        <source>Function next</source>
        <translation>Fn след.</translation>
    </message>
    <message>
        <source>Function previous</source>
        <translation>Fn пред.</translation>
    </message>
    <message>
        <source>Function rewind</source>
        <translation>Fn назад</translation>
    </message>
    <message>
        <source>Gear</source>
        <translation>Передача</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Серый</translation>
    </message>
    <message>
        <source>Hand</source>
        <translation>Ручной тормоз</translation>
    </message>
    <message>
        <source>Hang up</source>
        <translation>Отбой</translation>
    </message>
    <message>
        <source>Head</source>
        <translation>Потолок</translation>
    </message>
    <message>
        <source>Heating driver</source>
        <translation>Обогрев водителя</translation>
    </message>
    <message>
        <source>Heating passenger</source>
        <translation>Обогрев пассажира</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Высоко</translation>
    </message>
    <message>
        <source>Hill descent</source>
        <translation>Спуск</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Главная</translation>
    </message>
    <message>
        <source>Illumination</source>
        <translation>Подсветка</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Внутри</translation>
    </message>
    <message>
        <source>Indicator</source>
        <translation>Поворотник</translation>
    </message>
    <message>
        <source>Indicator volume</source>
        <translation>Громкость поворотника</translation>
    </message>
    <message>
        <source>Individual</source>
        <translation>Individual</translation>
    </message>
    <message>
        <source>Inspection</source>
        <translation>Осмотр</translation>
    </message>
    <message>
        <source>Instruments</source>
        <translation>Приборы</translation>
    </message>
    <message>
        <source>Introduction</source>
        <translation>Введение</translation>
    </message>
    <message>
        <source>Ioniser</source>
        <translation>Ионизатор</translation>
    </message>
    <message>
        <source>Ioniser at start</source>
        <translation>Ионизатор при пуске</translation>
    </message>
    <message>
        <source>Ioniser mode</source>
        <translation>Режим ионизатора</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Кнопка</translation>
    </message>
    <message>
        <source>Key form</source>
        <translation>Формат кнопки</translation>
    </message>
    <message>
        <source>Key position</source>
        <translation>Сиденье по ключу</translation>
    </message>
    <message>
        <source>Known</source>
        <translation>Известно</translation>
    </message>
    <message>
        <source>Lane</source>
        <translation>Полоса</translation>
    </message>
    <message>
        <source>Lane change</source>
        <translation>Смена полосы</translation>
    </message>
    <message>
        <source>Lane departure</source>
        <translation>Выезд</translation>
    </message>
    <message>
        <source>Lane keeping</source>
        <translation>Удержание</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Last distance</source>
        <translation>Прежняя</translation>
    </message>
    <message>
        <source>Late</source>
        <translation>Поздно</translation>
    </message>
    <message>
        <source>Leaving home</source>
        <translation>Leaving Home</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Слева</translation>
    </message>
    <message>
        <source>Left indicator</source>
        <translation>Поворот. Л</translation>
    </message>
    <message>
        <source>Left mirror</source>
        <translation>Левое зеркало</translation>
    </message>
    <message>
        <source>Left step</source>
        <translation>Ступень слева</translation>
    </message>
    <message>
        <source>Lids</source>
        <translation>Крышки</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Освещение</translation>
    </message>
    <message>
        <source>Lighting</source>
        <translation>Освещение</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Загрузка</translation>
    </message>
    <message>
        <source>Lock sound</source>
        <translation>Звук запирания</translation>
    </message>
    <message>
        <source>Long</source>
        <translation>Долго</translation>
    </message>
    <message>
        <source>Long term</source>
        <translation>За длительный период</translation>
    </message>
    <message>
        <source>Loss</source>
        <translation>Потеря</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Низко</translation>
    </message>
    <message>
        <source>Lower reversing</source>
        <translation>Опускать назад</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Карта</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Медиа</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Средне</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Память</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Меню</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Сообщение</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Центр</translation>
    </message>
    <message>
        <source>Mirrors</source>
        <translation>Зеркала</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Режим</translation>
    </message>
    <message>
        <source>Motorway</source>
        <translation>Автомагистраль</translation>
    </message>
    <message>
        <source>Moving object</source>
        <translation>Движущиеся объекты</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Без звука</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>След.</translation>
    </message>
    <message>
        <source>Night brightness</source>
        <translation>Яркость ночью</translation>
    </message>
    <message>
        <source>No signal</source>
        <translation>Нет сигнала</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Обычный</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Выкл.</translation>
    </message>
    <message>
        <source>Offroad</source>
        <translation>Offroad</translation>
    </message>
    <message>
        <source>Offroad climate</source>
        <translation>Offroad: климат</translation>
    </message>
    <message>
        <source>Offroad individual</source>
        <translation>Offroad Individual</translation>
    </message>
    <message>
        <source>Oil</source>
        <translation>Масло</translation>
    </message>
    <message>
        <source>Oil temperature</source>
        <translation>Темп. масла</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Вкл.</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>Открывание</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Оранжевый</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Снаружи</translation>
    </message>
    <message>
        <source>Outside</source>
        <translation>Снаружи</translation>
    </message>
    <message>
        <source>PA</source>
        <translation>PA</translation>
    </message>
    <message>
        <source>Parallel</source>
        <translation>Параллельно</translation>
    </message>
    <message>
        <source>Parallel parking</source>
        <translation>Параллельная парковка</translation>
    </message>
    <message>
        <source>Parking</source>
        <translation>Парковка</translation>
    </message>
    <message>
        <source>Parking picture</source>
        <translation>Вид парковки</translation>
    </message>
    <message>
        <source>Perpendicular</source>
        <translation>Перпендикулярно</translation>
    </message>
    <message>
        <source>Perpendicular parking</source>
        <translation>Перпендикулярная парковка</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Телефон</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Изображение</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Пуск</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Питание</translation>
    </message>
    <message>
        <source>Power time</source>
        <translation>Время работы</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Давление</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Пред.</translation>
    </message>
    <message>
        <source>Radar</source>
        <translation>Радар</translation>
    </message>
    <message>
        <source>Radar maxima</source>
        <translation>Максимумы радара</translation>
    </message>
    <message>
        <source>Radar sound</source>
        <translation>Звук радара</translation>
    </message>
    <message>
        <source>Rain</source>
        <translation>Дождь</translation>
    </message>
    <message>
        <source>Rain wiping</source>
        <translation>Очистка в дождь</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Запас хода</translation>
    </message>
    <message>
        <source>Rear</source>
        <translation>Сзади</translation>
    </message>
    <message>
        <source>Rear and around</source>
        <translation>Сзади и вокруг</translation>
    </message>
    <message>
        <source>Rear and left</source>
        <translation>Сзади и слева</translation>
    </message>
    <message>
        <source>Rear and right</source>
        <translation>Сзади и справа</translation>
    </message>
    <message>
        <source>Rear defrost</source>
        <translation>Обогрев заднего стекла</translation>
    </message>
    <message>
        <source>Rear left</source>
        <translation>Сзади слева</translation>
    </message>
    <message>
        <source>Rear reversing</source>
        <translation>Сзади при заднем ходе</translation>
    </message>
    <message>
        <source>Rear right</source>
        <translation>Сзади справа</translation>
    </message>
    <message>
        <source>Rear seat</source>
        <translation>Заднее сиденье</translation>
    </message>
    <message>
        <source>Rear tone</source>
        <translation>Тон сзади</translation>
    </message>
    <message>
        <source>Rear volume</source>
        <translation>Громкость сзади</translation>
    </message>
    <message>
        <source>Rear window</source>
        <translation>Задние окна</translation>
    </message>
    <message>
        <source>Rear wiping</source>
        <translation>Задняя щётка</translation>
    </message>
    <message>
        <source>Reasons</source>
        <translation>Причины</translation>
    </message>
    <message>
        <source>Relax</source>
        <translation>Релакс</translation>
    </message>
    <message>
        <source>Remote</source>
        <translation>Пульт</translation>
    </message>
    <message>
        <source>Remote key</source>
        <translation>Ключ с ДУ</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Сообщения</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Задний ход</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Перемотка −</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Справа</translation>
    </message>
    <message>
        <source>Right indicator</source>
        <translation>Поворот. П</translation>
    </message>
    <message>
        <source>Right mirror</source>
        <translation>Правое зеркало</translation>
    </message>
    <message>
        <source>Right step</source>
        <translation>Ступень справа</translation>
    </message>
    <message>
        <source>Roller down</source>
        <translation>Колесо вниз</translation>
    </message>
    <message>
        <source>Roller up</source>
        <translation>Колесо вверх</translation>
    </message>
    <message>
        <source>SOS</source>
        <translation>SOS</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Шкала</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Экран</translation>
    </message>
    <message>
        <source>Seat</source>
        <translation>Сиденье</translation>
    </message>
    <message>
        <source>Sensor</source>
        <translation>Датчик</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Техобслуживание</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Кратко</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Показывать</translation>
    </message>
    <message>
        <source>Side</source>
        <translation>Сторона</translation>
    </message>
    <message>
        <source>Since refuel</source>
        <translation>С момента заправки</translation>
    </message>
    <message>
        <source>Since start</source>
        <translation>С момента пуска</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>Одна</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Медленно</translation>
    </message>
    <message>
        <source>Smart entry</source>
        <translation>Умный доступ</translation>
    </message>
    <message>
        <source>Snow</source>
        <translation>Снег</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>Мягко</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Скорость</translation>
    </message>
    <message>
        <source>Speed limit</source>
        <translation>Ограничение скорости</translation>
    </message>
    <message>
        <source>Speed lock</source>
        <translation>Запирание в движении</translation>
    </message>
    <message>
        <source>Speed volume</source>
        <translation>Громкость от скорости</translation>
    </message>
    <message>
        <source>Speed warning</source>
        <translation>Лимит скорости</translation>
    </message>
    <message>
        <source>Sport</source>
        <translation>Sport</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Стандарт</translation>
    </message>
    <message>
        <source>Start animation</source>
        <translation>Заставка при пуске</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Время пуска</translation>
    </message>
    <message>
        <source>Start-stop</source>
        <translation>Старт-стоп</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>Запускается</translation>
    </message>
    <message>
        <source>Steering</source>
        <translation>Рулевое управление</translation>
    </message>
    <message>
        <source>Steering mode</source>
        <translation>Режим руля</translation>
    </message>
    <message>
        <source>Steering wheel</source>
        <translation>Руль</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Ступени</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Стиль</translation>
    </message>
    <message>
        <source>Sunroof</source>
        <translation>Люк</translation>
    </message>
    <message>
        <source>Surround</source>
        <translation>Объёмный звук</translation>
    </message>
    <message>
        <source>Switch on</source>
        <translation>Включение</translation>
    </message>
    <message>
        <source>Synchronous</source>
        <translation>Синхронно</translation>
    </message>
    <message>
        <source>Tailgate</source>
        <translation>Крышка багажника</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Температура</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>To face</source>
        <translation>В лицо</translation>
    </message>
    <message>
        <source>To feet</source>
        <translation>В ноги</translation>
    </message>
    <message>
        <source>To window</source>
        <translation>На стекло</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Движение</translation>
    </message>
    <message>
        <source>Treble</source>
        <translation>Высокие</translation>
    </message>
    <message>
        <source>Trip</source>
        <translation>Поездка</translation>
    </message>
    <message>
        <source>Tune knob left</source>
        <translation>Поиск влево</translation>
    </message>
    <message>
        <source>Tune knob right</source>
        <translation>Поиск вправо</translation>
    </message>
    <message>
        <source>Turning fog</source>
        <translation>Подсветка поворотов</translation>
    </message>
    <message>
        <source>Twice</source>
        <translation>Дважды</translation>
    </message>
    <message>
        <source>Tyres</source>
        <translation>Шины</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Единица</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Единицы измерения</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Отпереть</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Вверх</translation>
    </message>
    <message>
        <source>Up left</source>
        <translation>Вверх влево</translation>
    </message>
    <message>
        <source>Up right</source>
        <translation>Вверх вправо</translation>
    </message>
    <message>
        <source>Vehicle number</source>
        <translation>Номер VIN</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Версия</translation>
    </message>
    <message>
        <source>Very close</source>
        <translation>Вплотную</translation>
    </message>
    <message>
        <source>Very far</source>
        <translation>Макс.</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Видео</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Голос</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Объём</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>Тише</translation>
    </message>
    <message>
        <source>Volume knob down</source>
        <translation>Громкость −</translation>
    </message>
    <message>
        <source>Volume knob up</source>
        <translation>Громкость +</translation>
    </message>
    <message>
        <source>Volume up</source>
        <translation>Громче</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>Warning volume</source>
        <translation>Громкость предупреждений</translation>
    </message>
    <message>
        <source>Way</source>
        <translation>Способ</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Приветствие</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Белый</translation>
    </message>
    <message>
        <source>Window and roof</source>
        <translation>Окна и люк</translation>
    </message>
    <message>
        <source>Wiper position</source>
        <translation>Положение щёток</translation>
    </message>
    <message>
        <source>Wipers</source>
        <translation>Стеклоочистители</translation>
    </message>
    <message>
        <source>Wish AM</source>
        <translation>Запрос AM</translation>
    </message>
    <message>
        <source>Wish AUX</source>
        <translation>Запрос AUX</translation>
    </message>
    <message>
        <source>Wish Bluetooth</source>
        <translation>Bluetooth</translation>
    </message>
    <message>
        <source>Wish CD</source>
        <translation>Запрос CD</translation>
    </message>
    <message>
        <source>Wish FM</source>
        <translation>Запрос FM</translation>
    </message>
    <message>
        <source>Wish USB</source>
        <translation>Запрос USB</translation>
    </message>
    <message>
        <source>Wish answer</source>
        <translation>Ответить</translation>
    </message>
    <message>
        <source>Wish refuse</source>
        <translation>Отклонить</translation>
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

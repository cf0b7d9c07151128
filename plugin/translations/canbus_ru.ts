<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>CanBus_Raise_Volkswagen</name>
    <message>
        <source>Car infos</source>
        <translation>Автомобиль</translation>
    </message>
</context>
<context>
    <name>SelectDialog</name>
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
    <name>VWFunctionSetting</name>
    <message>
        <source>Factory settings</source>
        <translation>Заводские настройки</translation>
    </message>
    <message>
        <source>Are you sure restore</source>
        <translation>Вернуть заводские настройки раздела</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>?</translation>
    </message>
    <message>
        <source>Driving data</source>
        <translation>Данные о поездке</translation>
    </message>
    <message>
        <source>Are you sure </source>
        <translation>Подтверждаете: </translation>
    </message>
    <message>
        <source>The car has not told its value</source>
        <translation>Автомобиль ещё не сообщил значение</translation>
    </message>
    <message>
        <source>%1 %2 %3 ?</source>
        <translation>%1 «%2»%3</translation>
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
        <translation>Автомобиль</translation>
    </message>
    <message>
        <source>Driving data</source>
        <translation>Поездка</translation>
    </message>
    <message>
        <source>Tire pressure</source>
        <translation>Шины</translation>
    </message>
    <message>
        <source>Car status</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Запас хода</translation>
    </message>
    <message>
        <source>Consumption</source>
        <translation>Расход</translation>
    </message>
    <message>
        <source>Avg. consumption</source>
        <translation>Средний расход</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Пробег</translation>
    </message>
    <message>
        <source>Avg. speed</source>
        <translation>Средняя скорость</translation>
    </message>
    <message>
        <source>Tire pressure status</source>
        <translation>Давление в шинах</translation>
    </message>
    <message>
        <source>Since start</source>
        <translation>С момента пуска</translation>
    </message>
    <message>
        <source>Since refueling</source>
        <translation>С момента заправки</translation>
    </message>
    <message>
        <source>Long-term</source>
        <translation>За длительный период</translation>
    </message>
    <message>
        <source>Normal pressure</source>
        <translation>Давление в норме</translation>
    </message>
    <message>
        <source>Low pressure</source>
        <translation>Низкое давление</translation>
    </message>
    <message>
        <source>Hight pressure</source>
        <translation>Высокое давление</translation>
    </message>
    <message>
        <source>Tire pressure is normal</source>
        <translation>Давление в шинах в норме</translation>
    </message>
    <message>
        <source>Please check the tire pressure</source>
        <translation>Проверьте давление в шинах</translation>
    </message>
    <message>
        <source>Tire pressure is too low</source>
        <translation>Слишком низкое давление в шинах</translation>
    </message>
    <message>
        <source>Tire pressure loss</source>
        <translation>Потеря давления в шинах</translation>
    </message>
    <message>
        <source>mi</source>
        <translation>миль</translation>
    </message>
    <message>
        <source>km</source>
        <translation>км</translation>
    </message>
    <message>
        <source>km/h</source>
        <translation>км/ч</translation>
    </message>
    <message>
        <source>mph</source>
        <translation>миль/ч</translation>
    </message>
    <message>
        <source>L/100km</source>
        <translation>л/100 км</translation>
    </message>
    <message>
        <source>km/L</source>
        <translation>км/л</translation>
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
        <translation>ТО просрочено</translation>
    </message>
    <message>
        <source>Time (h:min)</source>
        <translation>Время (ч:мин)</translation>
    </message>
    <message>
        <source>not in this car</source>
        <translation>недоступно</translation>
    </message>
</context>
<context>
    <name>Vw</name>
    <message>
        <source>No entries available</source>
        <translation>Записей нет</translation>
    </message>
    <message>
        <source>overdue by</source>
        <translation>просрочено на</translation>
    </message>
    <message>
        <source>Start-stop system is deactivated</source>
        <translation>Система «старт-стоп» выключена</translation>
    </message>
    <message>
        <source>Start-stop system is activated</source>
        <translation>Система «старт-стоп» включена</translation>
    </message>
    <message>
        <source>Report code</source>
        <translation>Код сообщения</translation>
    </message>
    <message>
        <source>days</source>
        <translation>дн.</translation>
    </message>
    <message>
        <source>mi</source>
        <translation>миль</translation>
    </message>
    <message>
        <source>km</source>
        <translation>км</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>Выкл.</translation>
    </message>
    <message>
        <source>Activated</source>
        <translation>Включена</translation>
    </message>
    <message>
        <source>ESC sport</source>
        <translation>ESC Sport</translation>
    </message>
    <message>
        <source>Esc system</source>
        <translation>Система ESC</translation>
    </message>
    <message>
        <source>Tyres</source>
        <translation>Шины</translation>
    </message>
    <message>
        <source>Driver assistance</source>
        <translation>Помощь водителю</translation>
    </message>
    <message>
        <source>Parking and manoeuvring</source>
        <translation>Парковка и маневрирование</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Освещение</translation>
    </message>
    <message>
        <source>Mirrors and wipers</source>
        <translation>Зеркала и стеклоочистители</translation>
    </message>
    <message>
        <source>Opening and closing</source>
        <translation>Открывание и закрывание</translation>
    </message>
    <message>
        <source>Multifunction display</source>
        <translation>Многофункциональный дисплей</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Техобслуживание</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Единицы измерения</translation>
    </message>
    <message>
        <source>Seat driver profile</source>
        <translation>Сиденье и профиль водителя</translation>
    </message>
    <message>
        <source>Vehice status Start-stop</source>
        <translation>Состояние автомобиля: «старт-стоп»</translation>
    </message>
    <message>
        <source>Vehice status reports</source>
        <translation>Состояние автомобиля: сообщения</translation>
    </message>
    <message>
        <source>Convenience consumer</source>
        <translation>Потребители систем комфорта</translation>
    </message>
    <message>
        <source>Factory settings</source>
        <translation>Заводские настройки</translation>
    </message>
    <message>
        <source>km/h</source>
        <translation>км/ч</translation>
    </message>
    <message>
        <source>Comfortable</source>
        <translation>Комфорт</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Стандарт</translation>
    </message>
    <message>
        <source>Full load</source>
        <translation>Полная загрузка</translation>
    </message>
    <message>
        <source>Speed warning</source>
        <translation>Предупреждение о скорости</translation>
    </message>
    <message>
        <source>Warning speed</source>
        <translation>Порог скорости</translation>
    </message>
    <message>
        <source>TPMS SET</source>
        <translation>Сохранить давление в шинах</translation>
    </message>
    <message>
        <source>Direct tyres pressure monitoring</source>
        <translation>Прямой контроль давления в шинах</translation>
    </message>
    <message>
        <source>Eco</source>
        <translation>Eco</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Обычный</translation>
    </message>
    <message>
        <source>Sport</source>
        <translation>Sport</translation>
    </message>
    <message>
        <source>Very close</source>
        <translation>Очень близко</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Близко</translation>
    </message>
    <message>
        <source>Far</source>
        <translation>Далеко</translation>
    </message>
    <message>
        <source>Very far</source>
        <translation>Очень далеко</translation>
    </message>
    <message>
        <source>Lane assist</source>
        <translation>Ассистент движения по полосе</translation>
    </message>
    <message>
        <source>Lane keeping assist system</source>
        <translation>Система удержания в полосе</translation>
    </message>
    <message>
        <source>Driver alert system</source>
        <translation>Контроль усталости водителя</translation>
    </message>
    <message>
        <source>Front assist</source>
        <translation>Front Assist</translation>
    </message>
    <message>
        <source>Advance warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>Display distance warning</source>
        <translation>Показывать предупреждение о дистанции</translation>
    </message>
    <message>
        <source>Adaptive cruise control</source>
        <translation>Адаптивный круиз-контроль</translation>
    </message>
    <message>
        <source>Last distance selected</source>
        <translation>Последняя выбранная дистанция</translation>
    </message>
    <message>
        <source>Drive program</source>
        <translation>Программа движения</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Расстояние</translation>
    </message>
    <message>
        <source>Hill Descent Control</source>
        <translation>Помощь при спуске</translation>
    </message>
    <message>
        <source>Activa automatically</source>
        <translation>Включать автоматически</translation>
    </message>
    <message>
        <source>Parking brake function</source>
        <translation>Торможение при маневрировании</translation>
    </message>
    <message>
        <source>Front volume</source>
        <translation>Громкость спереди</translation>
    </message>
    <message>
        <source>Front tone setting</source>
        <translation>Тон спереди</translation>
    </message>
    <message>
        <source>Rear volume</source>
        <translation>Громкость сзади</translation>
    </message>
    <message>
        <source>Rear tone setting</source>
        <translation>Тон сзади</translation>
    </message>
    <message>
        <source>Radar sound</source>
        <translation>Звук радара</translation>
    </message>
    <message>
        <source>Early</source>
        <translation>Рано</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Средне</translation>
    </message>
    <message>
        <source>Late</source>
        <translation>Поздно</translation>
    </message>
    <message>
        <source>Right traffic</source>
        <translation>Правостороннее движение</translation>
    </message>
    <message>
        <source>Left traffic</source>
        <translation>Левостороннее движение</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Белый</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Оранжевый</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Синий</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>s</source>
        <translation>с</translation>
    </message>
    <message>
        <source>Switch-on time</source>
        <translation>Время включения</translation>
    </message>
    <message>
        <source>Automatic headlight control in rain</source>
        <translation>Автоматический свет в дождь</translation>
    </message>
    <message>
        <source>Lane change flash</source>
        <translation>Комфортные указатели поворота</translation>
    </message>
    <message>
        <source>Instrument/switch lighting</source>
        <translation>Подсветка приборов и выключателей</translation>
    </message>
    <message>
        <source>Coming home function</source>
        <translation>Функция Coming Home</translation>
    </message>
    <message>
        <source>Leaving home function</source>
        <translation>Функция Leaving Home</translation>
    </message>
    <message>
        <source>Travel mode</source>
        <translation>Режим поездки за границу</translation>
    </message>
    <message>
        <source>Door ambient light</source>
        <translation>Подсветка дверей</translation>
    </message>
    <message>
        <source>Foowell light</source>
        <translation>Подсветка пространства для ног</translation>
    </message>
    <message>
        <source>Head light</source>
        <translation>Подсветка потолка</translation>
    </message>
    <message>
        <source>Front light</source>
        <translation>Передняя подсветка</translation>
    </message>
    <message>
        <source>All light</source>
        <translation>Всё освещение</translation>
    </message>
    <message>
        <source>Motorway light</source>
        <translation>Свет для автомагистрали</translation>
    </message>
    <message>
        <source>Dynamic light assist</source>
        <translation>Динамическое управление светом</translation>
    </message>
    <message>
        <source>Interior environment lighting color</source>
        <translation>Цвет фоновой подсветки</translation>
    </message>
    <message>
        <source>Headlight illumination distance</source>
        <translation>Дальность света фар</translation>
    </message>
    <message>
        <source>Daytime running lights</source>
        <translation>Дневные ходовые огни</translation>
    </message>
    <message>
        <source>Synchronous adjustment</source>
        <translation>Синхронная регулировка</translation>
    </message>
    <message>
        <source>Lower while reversing</source>
        <translation>Опускать при заднем ходе</translation>
    </message>
    <message>
        <source>Automatic wiping in rain</source>
        <translation>Автоматическая очистка в дождь</translation>
    </message>
    <message>
        <source>Rear window wiping in reverse gear</source>
        <translation>Задний очиститель при заднем ходе</translation>
    </message>
    <message>
        <source>Fold away after parking</source>
        <translation>Складывать после парковки</translation>
    </message>
    <message>
        <source>Driver window</source>
        <translation>Окно водителя</translation>
    </message>
    <message>
        <source>All window</source>
        <translation>Все окна</translation>
    </message>
    <message>
        <source>Vehicle side</source>
        <translation>Сторона автомобиля</translation>
    </message>
    <message>
        <source>Single door</source>
        <translation>Одна дверь</translation>
    </message>
    <message>
        <source>All doors</source>
        <translation>Все двери</translation>
    </message>
    <message>
        <source>Convenience opening</source>
        <translation>Комфортное открывание</translation>
    </message>
    <message>
        <source>Door unlocking</source>
        <translation>Отпирание дверей</translation>
    </message>
    <message>
        <source>Automatic locking</source>
        <translation>Автоматическое запирание</translation>
    </message>
    <message>
        <source>Inductive rear tailgate</source>
        <translation>Сенсорная крышка багажника</translation>
    </message>
    <message>
        <source>Acoustic confirmation</source>
        <translation>Звуковое подтверждение</translation>
    </message>
    <message>
        <source>Front window</source>
        <translation>Передние окна</translation>
    </message>
    <message>
        <source>Rear window</source>
        <translation>Задние окна</translation>
    </message>
    <message>
        <source>Sliding sunroof</source>
        <translation>Сдвижной люк</translation>
    </message>
    <message>
        <source>Current consumption</source>
        <translation>Текущий расход</translation>
    </message>
    <message>
        <source>Average consumption</source>
        <translation>Средний расход</translation>
    </message>
    <message>
        <source>Convenience consumption</source>
        <translation>Расход систем комфорта</translation>
    </message>
    <message>
        <source>Eco tips</source>
        <translation>Эко-советы</translation>
    </message>
    <message>
        <source>Travelling time</source>
        <translation>Время в пути</translation>
    </message>
    <message>
        <source>Distance travelled</source>
        <translation>Пройденный путь</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>Средняя скорость</translation>
    </message>
    <message>
        <source>Digital speed display</source>
        <translation>Цифровая индикация скорости</translation>
    </message>
    <message>
        <source>Oil temperature</source>
        <translation>Температура масла</translation>
    </message>
    <message>
        <source>Vehicle NO.</source>
        <translation>Номер VIN</translation>
    </message>
    <message>
        <source>Inspection days</source>
        <translation>Осмотр (дни)</translation>
    </message>
    <message>
        <source>Inspection distance</source>
        <translation>Осмотр (пробег)</translation>
    </message>
    <message>
        <source>Oil change service days</source>
        <translation>Замена масла (дни)</translation>
    </message>
    <message>
        <source>Oil change service distance</source>
        <translation>Замена масла (пробег)</translation>
    </message>
    <message>
        <source>Wiper in maintenance position</source>
        <translation>Сервисное положение щёток</translation>
    </message>
    <message>
        <source>Reset &quot;Since start&quot;</source>
        <translation>Сбросить «С момента пуска»</translation>
    </message>
    <message>
        <source>Reset &quot;Long-term&quot;</source>
        <translation>Сбросить «За длительный период»</translation>
    </message>
    <message>
        <source>Reset maintenance cycle</source>
        <translation>Сбросить интервал ТО</translation>
    </message>
    <message>
        <source>mph</source>
        <translation>миль/ч</translation>
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
        <translation>л</translation>
    </message>
    <message>
        <source>gal(UK)</source>
        <translation>гал (UK)</translation>
    </message>
    <message>
        <source>gal(US)</source>
        <translation>гал (US)</translation>
    </message>
    <message>
        <source>mpg(UK)</source>
        <translation>mpg (UK)</translation>
    </message>
    <message>
        <source>L/100km</source>
        <translation>л/100 км</translation>
    </message>
    <message>
        <source>mpg(US)</source>
        <translation>mpg (US)</translation>
    </message>
    <message>
        <source>km/L</source>
        <translation>км/л</translation>
    </message>
    <message>
        <source>bar</source>
        <translation>бар</translation>
    </message>
    <message>
        <source>psi</source>
        <translation>psi</translation>
    </message>
    <message>
        <source>kPa</source>
        <translation>кПа</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Скорость</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Температура</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Объём</translation>
    </message>
    <message>
        <source>Consumption</source>
        <translation>Расход</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Давление</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Все настройки</translation>
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
        <translation>Снег</translation>
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
        <translation>Ключ с ДУ активирован</translation>
    </message>
    <message>
        <source>Remote key memory matching</source>
        <translation>Привязка памяти к ключу</translation>
    </message>
    <message>
        <source>Driving mode</source>
        <translation>Режим движения</translation>
    </message>
    <message>
        <source>Steering</source>
        <translation>Рулевое управление</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Двигатель</translation>
    </message>
    <message>
        <source>Climate</source>
        <translation>Климат</translation>
    </message>
    <message>
        <source>Front lighting</source>
        <translation>Передний свет</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сброс</translation>
    </message>
    <message>
        <source>Car Setting</source>
        <translation>Настройки автомобиля</translation>
    </message>
    <message>
        <source>Vehice Start-stop</source>
        <translation>Система «старт-стоп»</translation>
    </message>
    <message>
        <source>Vehice reports</source>
        <translation>Сообщения автомобиля</translation>
    </message>
    <message>
        <source>Trailer mode</source>
        <translation>Режим прицепа</translation>
    </message>
    <message>
        <source>Windscreen could become fogged</source>
        <translation>Возможно запотевание лобового стекла</translation>
    </message>
    <message>
        <source>Operating temperature not maintained</source>
        <translation>Рабочая температура не достигнута</translation>
    </message>
    <message>
        <source>No driver detected</source>
        <translation>Водитель не обнаружен</translation>
    </message>
    <message>
        <source>Gearbox requires engine to be running</source>
        <translation>Коробке передач требуется работающий двигатель</translation>
    </message>
    <message>
        <source>Power consumption is high</source>
        <translation>Высокое энергопотребление</translation>
    </message>
    <message>
        <source>Starting start-stop system</source>
        <translation>Система «старт-стоп» запускается</translation>
    </message>
    <message>
        <source>Engine must be running</source>
        <translation>Двигатель должен работать</translation>
    </message>
    <message>
        <source>Gradient too steep</source>
        <translation>Слишком крутой уклон</translation>
    </message>
    <message>
        <source>Start-stop system is currently not  available</source>
        <translation>Система «старт-стоп» временно недоступна</translation>
    </message>
    <message>
        <source>Emergency brake function intervention</source>
        <translation>Сработало экстренное торможение</translation>
    </message>
    <message>
        <source>Brake requires engine to be running</source>
        <translation>Тормозам требуется работающий двигатель</translation>
    </message>
    <message>
        <source>Power consumption is hight</source>
        <translation>Высокое энергопотребление</translation>
    </message>
    <message>
        <source>Air conditioning requires engine to be running</source>
        <translation>Кондиционеру требуется работающий двигатель</translation>
    </message>
    <message>
        <source>Steering angle too great</source>
        <translation>Слишком большой угол поворота руля</translation>
    </message>
    <message>
        <source>Manoeuvering mode</source>
        <translation>Режим маневрирования</translation>
    </message>
    <message>
        <source>Defrost function is switched on</source>
        <translation>Включён обогрев стекла</translation>
    </message>
    <message>
        <source>Driver seatbelt not fastened</source>
        <translation>Водитель не пристёгнут</translation>
    </message>
    <message>
        <source>Driver door open</source>
        <translation>Открыта дверь водителя</translation>
    </message>
    <message>
        <source>Accelerator is depressed</source>
        <translation>Нажата педаль акселератора</translation>
    </message>
    <message>
        <source>Wndscreen heating is switched on</source>
        <translation>Включён обогрев лобового стекла</translation>
    </message>
    <message>
        <source>Maximum air conditioning requires engine to be running</source>
        <translation>Максимальному охлаждению требуется работающий двигатель</translation>
    </message>
    <message>
        <source>Bonnet has been opened</source>
        <translation>Открыт капот</translation>
    </message>
    <message>
        <source>Engine stop currently not possible</source>
        <translation>Остановка двигателя сейчас невозможна</translation>
    </message>
    <message>
        <source>Off-road mode is activated</source>
        <translation>Включён режим Offroad</translation>
    </message>
    <message>
        <source>System protection intervention Buttonlever activated too often</source>
        <translation>Защита системы: кнопка/рычаг нажаты слишком часто</translation>
    </message>
    <message>
        <source>Gear is engaged</source>
        <translation>Включена передача</translation>
    </message>
    <message>
        <source>Start-stop button pressed</source>
        <translation>Нажата кнопка «старт-стоп»</translation>
    </message>
    <message>
        <source>ACC intervention</source>
        <translation>Сработала система ACC</translation>
    </message>
    <message>
        <source>Park Assist is activated</source>
        <translation>Включён парковочный ассистент</translation>
    </message>
    <message>
        <source>ESC is switched off</source>
        <translation>Система ESC выключена</translation>
    </message>
    <message>
        <source>Start-stop system requires engine to be running</source>
        <translation>Системе «старт-стоп» требуется работающий двигатель</translation>
    </message>
    <message>
        <source>Air conditioning</source>
        <translation>Кондиционер</translation>
    </message>
    <message>
        <source>Auxiliary heater</source>
        <translation>Дополнительный отопитель</translation>
    </message>
    <message>
        <source>Rear window heating</source>
        <translation>Обогрев заднего стекла</translation>
    </message>
    <message>
        <source>Left seat heating</source>
        <translation>Обогрев левого сиденья</translation>
    </message>
    <message>
        <source>Right seat heating</source>
        <translation>Обогрев правого сиденья</translation>
    </message>
    <message>
        <source>Left seat ventilation</source>
        <translation>Вентиляция левого сиденья</translation>
    </message>
    <message>
        <source>Right seat ventilation</source>
        <translation>Вентиляция правого сиденья</translation>
    </message>
    <message>
        <source>Left head area heating</source>
        <translation>Обогрев шеи слева</translation>
    </message>
    <message>
        <source>Right head area heating</source>
        <translation>Обогрев шеи справа</translation>
    </message>
    <message>
        <source>Front fog light</source>
        <translation>Противотуманные фары</translation>
    </message>
    <message>
        <source>Rear fog light</source>
        <translation>Задний противотуманный фонарь</translation>
    </message>
    <message>
        <source>Windscreen heating</source>
        <translation>Обогрев лобового стекла</translation>
    </message>
    <message>
        <source>Steering whell heating</source>
        <translation>Обогрев рулевого колеса</translation>
    </message>
    <message>
        <source>Mirror heating</source>
        <translation>Обогрев зеркал</translation>
    </message>
    <message>
        <source>Rear seat heating</source>
        <translation>Обогрев задних сидений</translation>
    </message>
    <message>
        <source>Rear seat ventilation</source>
        <translation>Вентиляция задних сидений</translation>
    </message>
    <message>
        <source>Socket</source>
        <translation>Розетка</translation>
    </message>
    <message>
        <source>Drink holder</source>
        <translation>Подстаканник</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Отправлено</translation>
    </message>
    <message>
        <source>Waiting for the car</source>
        <translation>Ожидание автомобиля</translation>
    </message>
    <message>
        <source>Last report %1 min ago</source>
        <translation>Данные: %1 мин назад</translation>
    </message>
    <message>
        <source>Last report %1 h ago</source>
        <translation>Данные: %1 ч назад</translation>
    </message>
</context>
<context>
    <name>XinHangSettings</name>
    <message>
        <source>Original car</source>
        <translation>Штатная камера</translation>
    </message>
    <message>
        <source>360</source>
        <translation>360</translation>
    </message>
    <message>
        <source>Add camera</source>
        <translation>Дополнительная камера</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Выкл.</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Вкл.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>AfterMarket Camera</source>
        <translation>Нештатная камера</translation>
    </message>
    <message>
        <source>OE Camera</source>
        <translation>Штатная камера</translation>
    </message>
    <message>
        <source>AfterMarket 360</source>
        <translation>Нештатная 360°</translation>
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
        <translation>Кнопка парковки</translation>
    </message>
    <message>
        <source>Reverse State</source>
        <translation>Сигнал заднего хода</translation>
    </message>
    <message>
        <source>Gear Position</source>
        <translation>Положение селектора</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>По горизонтали</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>По вертикали</translation>
    </message>
    <message>
        <source>Horizontal and vertical</source>
        <translation>По горизонтали и вертикали</translation>
    </message>
    <message>
        <source>Reversing camera</source>
        <translation>Камера заднего вида</translation>
    </message>
    <message>
        <source>Right camera</source>
        <translation>Правая камера</translation>
    </message>
    <message>
        <source>Reversing track</source>
        <translation>Линии траектории</translation>
    </message>
    <message>
        <source>Reversing radar</source>
        <translation>Парковочный радар</translation>
    </message>
    <message>
        <source>Car type</source>
        <translation>Тип автомобиля</translation>
    </message>
    <message>
        <source>Display type</source>
        <translation>Тип экрана</translation>
    </message>
    <message>
        <source>Sound type</source>
        <translation>Тип звука</translation>
    </message>
    <message>
        <source>Reverse camera</source>
        <translation>Тип камеры заднего вида</translation>
    </message>
    <message>
        <source>Starting front view</source>
        <translation>Вид спереди при пуске</translation>
    </message>
    <message>
        <source>Steering front view</source>
        <translation>Вид спереди при повороте</translation>
    </message>
    <message>
        <source>Reversing front view</source>
        <translation>Вид спереди после заднего хода</translation>
    </message>
    <message>
        <source>Dedicated right view</source>
        <translation>Отдельный вид справа</translation>
    </message>
    <message>
        <source>Front view after right view</source>
        <translation>Вид спереди после вида справа</translation>
    </message>
    <message>
        <source>Rear video format</source>
        <translation>Формат видео сзади</translation>
    </message>
    <message>
        <source>Reverse condition</source>
        <translation>Признак заднего хода</translation>
    </message>
    <message>
        <source>Front view mirror</source>
        <translation>Отражение вида спереди</translation>
    </message>
    <message>
        <source>Right view mirror</source>
        <translation>Отражение вида справа</translation>
    </message>
    <message>
        <source>Rear view mirror</source>
        <translation>Отражение вида сзади</translation>
    </message>
    <message>
        <source>Reverse track</source>
        <translation>Линии траектории</translation>
    </message>
    <message>
        <source>Reverse radar</source>
        <translation>Парковочный радар</translation>
    </message>
</context>
<context>
    <name>XinHangSettingsWindow</name>
    <message>
        <source>Car Setting</source>
        <translation>Настройки автомобиля</translation>
    </message>
</context>
</TS>

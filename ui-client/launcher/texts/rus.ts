<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Select the local folder that you want to sync with your server.</source>
        <translation>Выберите локальную папку для синхронизации с сервером.</translation>
    </message>
    <message>
        <source>Could not reach the ZephLink service. Check your network connection and try again.</source>
        <translation>Не удалось связаться со службой ZephLink. Проверьте подключение к сети и повторите попытку.</translation>
    </message>
    <message>
        <source>Filter rules</source>
        <translation>Правила фильтрации</translation>
    </message>
    <message>
        <source>Mount point not allowed</source>
        <translation>Точка монтирования не допускается</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Период</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on your server. Select another folder.</source>
        <translation>Этой общей папки больше нет на сервере. Выберите другую папку.</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>Введите имя пользователя.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>Файлы с такими именами не будут синхронизироваться.</translation>
    </message>
    <message>
        <source>Could not connect to your server. Check your network connection and try again.</source>
        <translation>Не удалось подключиться к серверу. Проверьте подключение к сети и повторите попытку.</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Восстановить</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Только скачивание</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Открыть папку</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Направление синхронизации</translation>
    </message>
    <message>
        <source>Your first sync task on this server</source>
        <translation>Ваше первое задание синхронизации на этом сервере</translation>
    </message>
    <message>
        <source>Restores missing or damaged files, shortcuts and registry entries.</source>
        <translation>Восстанавливает отсутствующие или поврежденные файлы, ярлыки и записи реестра.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Место назначения</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>Щелкните здесь, чтобы обновить</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Путь к папке</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Общие папки</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Нет, спасибо</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Действие</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Предупреждение о сертификате</translation>
    </message>
    <message>
        <source>Change connection settings</source>
        <translation>Изменить настройки подключения</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Проверка подключения…</translation>
    </message>
    <message>
        <source>Lumivo Drive Setup</source>
        <translation>Установка Lumivo Drive</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Сегодня</translation>
    </message>
    <message>
        <source>Setup is ready to install Lumivo Drive on this computer.</source>
        <translation>Можно начинать установку Lumivo Drive на этот компьютер.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Новая общая папка</translation>
    </message>
    <message>
        <source>No usable folder was found. Ask your administrator for access to a shared folder.</source>
        <translation>Подходящих папок не найдено. Попросите администратора предоставить вам доступ к общей папке.</translation>
    </message>
    <message>
        <source>Could not enable syncing for this shared folder. Try again later.</source>
        <translation>Не удалось включить синхронизацию этой общей папки. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>По</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Снова синхронизировать эту папку</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>%1 d ago</source>
        <translation>%1 дн. назад</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is a mount point and cannot be synced. Select another folder.</source>
        <translation>Папка «%1» — точка монтирования, ее нельзя синхронизировать. Выберите другую папку.</translation>
    </message>
    <message>
        <source>This computer is already linked to &quot;%1&quot;. Edit the existing connection instead.</source>
        <translation>Этот компьютер уже связан с сервером «%1». Вместо создания нового подключения измените существующее.</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Доступно обновление</translation>
    </message>
    <message>
        <source>Enter a port number from 1 to 65535.</source>
        <translation>Введите номер порта от 1 до 65535.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>Открыть папку синхронизации</translation>
    </message>
    <message>
        <source>Lumivo Drive has been installed</source>
        <translation>Приложение Lumivo Drive установлено</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Удалить связь</translation>
    </message>
    <message>
        <source>This folder overlaps with the folder of another sync task. Select another folder.</source>
        <translation>Эта папка пересекается с папкой другого задания синхронизации. Выберите другую папку.</translation>
    </message>
    <message>
        <source>The folders on your server could not be listed. Check your network connection and try again.</source>
        <translation>Не удалось получить список папок на сервере. Проверьте подключение к сети и повторите попытку.</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Требуется внимание</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it before you continue.</source>
        <translation>Сертификат сервера изменился. Проверьте его, прежде чем продолжить.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Последняя страница</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Выполняется</translation>
    </message>
    <message>
        <source>June</source>
        <translation>июнь</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>Не удалось выполнить обновление. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.</source>
        <translation>Не удалось проверить подлинность сертификата сервера.</translation>
    </message>
    <message>
        <source>Please wait. This may take several minutes.</source>
        <translation>Подождите. Это может занять несколько минут.</translation>
    </message>
    <message>
        <source>Choose which features are installed</source>
        <translation>Выбор устанавливаемых компонентов</translation>
    </message>
    <message>
        <source>Your files, wherever you work</source>
        <translation>Ваши файлы везде, где вы работаете</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Снова синхронизировать эти папки</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full. Free up some space to continue syncing.</source>
        <translation>Диск этого компьютера заполнен. Освободите место, чтобы продолжить синхронизацию.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Использовать черно-белый значок в области уведомлений</translation>
    </message>
    <message>
        <source>Some fields are not filled in correctly. Correct them and try again.</source>
        <translation>Некоторые поля заполнены неправильно. Исправьте их и повторите попытку.</translation>
    </message>
    <message>
        <source>Setup was interrupted. Your computer has not been changed.</source>
        <translation>Установка прервана. На компьютере ничего не изменено.</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Папка не найдена</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Приостановлено</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Выберите папки для синхронизации</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Choose a folder on your server and the local folder to sync it with.</source>
        <translation>Выберите папку на сервере и локальную папку, с которой она будет синхронизироваться.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a dot</source>
        <translation>Пропускать файлы и папки, имена которых начинаются с точки</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Другой период</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Интернет</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Check both and try again.</source>
        <translation>Неверное имя пользователя или пароль. Проверьте их и повторите попытку.</translation>
    </message>
    <message>
        <source>This address belongs to another server. Check the address and try again.</source>
        <translation>Этот адрес принадлежит другому серверу. Проверьте адрес и повторите попытку.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Тип файла</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>Выберите способ настройки</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>понедельник</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files or ask your administrator for more space.</source>
        <translation>Ваша квота на сервере исчерпана. Удалите часть файлов или попросите администратора выделить больше места.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>август</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход выполнения</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Запуск…</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О приложении</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached. Stop syncing one of them first.</source>
        <translation>Достигнуто максимальное количество общих папок. Сначала прекратите синхронизацию одной из них.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Использовать системные настройки прокси</translation>
    </message>
    <message>
        <source>Keep both versions and rename the local one</source>
        <translation>Сохранить обе версии и переименовать локальную</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has stopped syncing. Open Lumivo Drive for details.</source>
        <translation>Синхронизация «%1» остановлена. Чтобы узнать подробности, откройте Lumivo Drive.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>ZephLink ID</source>
        <translation>ZephLink ID</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions for this folder. Choose another direction.</source>
        <translation>Направление синхронизации не соответствует вашим правам доступа к этой папке. Выберите другое направление.</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Подробнее</translation>
    </message>
    <message>
        <source>October</source>
        <translation>октябрь</translation>
    </message>
    <message>
        <source>February</source>
        <translation>февраль</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old. Update it on your server.</source>
        <translation>Эта версия Lumivo Drive Server устарела. Обновите ее на сервере.</translation>
    </message>
    <message>
        <source>Sync rules</source>
        <translation>Правила синхронизации</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. Check your permissions on the server.</source>
        <translation>Не удается скачать этот файл. Проверьте свои права доступа на сервере.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Подключение…</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Не использовать прокси</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Общая папка</translation>
    </message>
    <message>
        <source>Resume this connection</source>
        <translation>Возобновить это подключение</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Получить ссылку</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>The icon in the tray shows at a glance whether your files are in sync.</source>
        <translation>Значок в области уведомлений сразу показывает, синхронизированы ли ваши файлы.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>С</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Связать снова</translation>
    </message>
    <message>
        <source>History</source>
        <translation>История</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Версия</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Только для чтения</translation>
    </message>
    <message>
        <source>April</source>
        <translation>апрель</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Настройки сети</translation>
    </message>
    <message>
        <source>Setup is applying your choices.</source>
        <translation>Программа установки применяет выбранные параметры.</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They will remain on your server.</source>
        <translation>Папки, с которых вы снимете флажки, будут удалены с этого компьютера. На сервере они останутся.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full. Free up some space on it to continue syncing.</source>
        <translation>Диск сервера заполнен. Освободите на нем место, чтобы продолжить синхронизацию.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>The download failed. Check your network connection and try again.</source>
        <translation>Не удалось выполнить скачивание. Проверьте подключение к сети и повторите попытку.</translation>
    </message>
    <message>
        <source>Lumivo Drive</source>
        <translation>Lumivo Drive</translation>
    </message>
    <message>
        <source>Save and copy link</source>
        <translation>Сохранить и скопировать ссылку</translation>
    </message>
    <message>
        <source>Enter your server&apos;s address and your account details.</source>
        <translation>Введите адрес сервера и данные своей учетной записи.</translation>
    </message>
    <message>
        <source>Let&apos;s get started</source>
        <translation>Начало работы</translation>
    </message>
    <message>
        <source>There are no changes to save.</source>
        <translation>Нет изменений для сохранения.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Назад на %1 стр.</translation>
    </message>
    <message>
        <source>To install Lumivo Drive later, run Setup again.</source>
        <translation>Чтобы установить Lumivo Drive позже, запустите программу установки еще раз.</translation>
    </message>
    <message>
        <source>Right-click a file in a synced folder to share it or to see its earlier versions.</source>
        <translation>Щелкните правой кнопкой мыши файл в синхронизируемой папке, чтобы поделиться им или посмотреть его предыдущие версии.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Вчера</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Сведения о состоянии</translation>
    </message>
    <message>
        <source>Lumivo Drive could not be started. Restart the computer and try again.</source>
        <translation>Не удалось запустить Lumivo Drive. Перезагрузите компьютер и повторите попытку.</translation>
    </message>
    <message>
        <source>Keep the version on the server</source>
        <translation>Сохранить серверную версию</translation>
    </message>
    <message>
        <source>January</source>
        <translation>январь</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old for your server. Update it to version %1 or later.</source>
        <translation>Эта версия Lumivo Drive устарела и не подходит для вашего сервера. Обновите ее до версии %1 или более поздней.</translation>
    </message>
    <message>
        <source>Change, repair or remove Lumivo Drive</source>
        <translation>Изменение, восстановление или удаление Lumivo Drive</translation>
    </message>
    <message>
        <source>Connect through ZephLink</source>
        <translation>Подключаться через ZephLink</translation>
    </message>
    <message>
        <source>Click Install to begin. Click Back to review or change your choices. Click Cancel to exit Setup.</source>
        <translation>Нажмите «Установить», чтобы начать. Нажмите «Назад», чтобы проверить или изменить выбранные параметры. Нажмите «Отмена», чтобы выйти из программы установки.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>Произошла ошибка. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>Я принимаю условия лицензионного соглашения</translation>
    </message>
    <message>
        <source>Selective sync is not available yet. Update Lumivo Drive Server on your server to use it.</source>
        <translation>Выборочная синхронизация пока недоступна. Чтобы использовать ее, обновите Lumivo Drive Server на сервере.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Переименовано</translation>
    </message>
    <message>
        <source>This folder is read-only</source>
        <translation>Эта папка доступна только для чтения</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Ready to remove Lumivo Drive</source>
        <translation>Все готово к удалению Lumivo Drive</translation>
    </message>
    <message>
        <source>Choose what to sync with this computer and where to keep it.</source>
        <translation>Выберите, что нужно синхронизировать с этим компьютером и где это хранить.</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Отправлено</translation>
    </message>
    <message>
        <source>Your access was revoked, and the synced files were removed from this computer. Contact your administrator.</source>
        <translation>Ваш доступ отозван, и синхронизированные файлы удалены с этого компьютера. Обратитесь к администратору.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Ожидание</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Отправка…</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Применение настроек…</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Внимательно прочитайте следующее лицензионное соглашение.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Режим объединения</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Не синхронизировать эти папки</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Click Repair to begin. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>Нажмите «Восстановить», чтобы начать. Нажмите «Назад», чтобы проверить свой выбор. Нажмите «Отмена», чтобы выйти из программы установки.</translation>
    </message>
    <message>
        <source>You cannot write to this folder. Change its permissions or select another folder.</source>
        <translation>Запись в эту папку невозможна. Измените права доступа к ней или выберите другую папку.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Выборочная синхронизация</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Имя пользователя</translation>
    </message>
    <message>
        <source>December</source>
        <translation>декабрь</translation>
    </message>
    <message>
        <source>Enter a file size from %1 to %2 MB.</source>
        <translation>Введите размер файла от %1 до %2 МБ.</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files that are already on this computer will be kept.</source>
        <translation>Прекратить синхронизацию «%1»? Файлы, которые уже находятся на этом компьютере, будут сохранены.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Быстрая настройка</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Расширенная настройка</translation>
    </message>
    <message>
        <source>November</source>
        <translation>ноябрь</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Выбор папки</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Адрес сервера</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Ваша квота на сервере исчерпана.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>При двойном щелчке по значку в области уведомлений</translation>
    </message>
    <message>
        <source>Lumivo Drive is initializing...</source>
        <translation>Инициализация Lumivo Drive…</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Проверка файлов…</translation>
    </message>
    <message>
        <source>This computer is now linked to &quot;%1&quot;. Syncing starts right away.</source>
        <translation>Теперь этот компьютер связан с сервером «%1». Синхронизация начнется сразу же.</translation>
    </message>
    <message>
        <source>Everything in sync</source>
        <translation>Все синхронизировано</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Дата</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Обновление…</translation>
    </message>
    <message>
        <source>Custom period</source>
        <translation>Другой срок</translation>
    </message>
    <message>
        <source>Check the sync status</source>
        <translation>Следите за состоянием синхронизации</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Загрузка…</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Неактивно</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update:</source>
        <translation>Следующие приложения используют файлы, которые программа установки должна обновить:</translation>
    </message>
    <message>
        <source>Open Lumivo Drive</source>
        <translation>Открыть Lumivo Drive</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction and the sync rules yourself.</source>
        <translation>Самостоятельно выберите папки, направление и правила синхронизации.</translation>
    </message>
    <message>
        <source>Repair the installed files</source>
        <translation>Восстановление установленных файлов</translation>
    </message>
    <message>
        <source>Enter a number of versions greater than zero.</source>
        <translation>Введите количество версий больше нуля.</translation>
    </message>
    <message>
        <source>This username does not exist on your server. Check it and try again.</source>
        <translation>Такого имени пользователя нет на сервере. Проверьте его и повторите попытку.</translation>
    </message>
    <message>
        <source>Update Lumivo Drive</source>
        <translation>Обновление Lumivo Drive</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>Узнать больше</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Дата создания</translation>
    </message>
    <message>
        <source>Keep the files on this computer and on your server in sync.</source>
        <translation>Синхронизируйте файлы на этом компьютере и на сервере.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>This folder is already synced by another cloud sync app. Select another folder to avoid conflicts.</source>
        <translation>Эту папку уже синхронизирует другое приложение облачного хранилища. Чтобы избежать конфликтов, выберите другую папку.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Имя компьютера</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Пропустить</translation>
    </message>
    <message>
        <source>The proxy requires a username and a password</source>
        <translation>Для прокси требуются имя пользователя и пароль</translation>
    </message>
    <message>
        <source>The server did not accept the request. Check your entries and try again.</source>
        <translation>Сервер не принял запрос. Проверьте введенные данные и повторите попытку.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old for Lumivo Drive on this computer. Update it on your server to version %1 or later.</source>
        <translation>Эта версия Lumivo Drive Server устарела и не подходит для Lumivo Drive на этом компьютере. Обновите ее на сервере до версии %1 или более поздней.</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Отправить в</translation>
    </message>
    <message>
        <source>The ZephLink service reported an error. Try again later.</source>
        <translation>Служба ZephLink сообщила об ошибке. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>Close these applications and click Retry, or click Ignore and restart the computer later.</source>
        <translation>Закройте эти приложения и нажмите «Повторить» либо нажмите «Пропустить» и перезагрузите компьютер позже.</translation>
    </message>
    <message>
        <source>Lets you change which features are installed.</source>
        <translation>Позволяет изменить набор установленных компонентов.</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from &quot;%1&quot;?\nThe files that are already on this computer will be kept.</source>
        <translation>Удалить связь этого компьютера с сервером «%1»?\nФайлы, которые уже находятся на этом компьютере, будут сохранены.</translation>
    </message>
    <message>
        <source>This folder is used by a backup task. Select another folder.</source>
        <translation>Эту папку использует задание резервного копирования. Выберите другую папку.</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full.</source>
        <translation>Диск этого компьютера заполнен.</translation>
    </message>
    <message>
        <source>This folder is not empty</source>
        <translation>Эта папка не пуста</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Показать в папке</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Тип подключения</translation>
    </message>
    <message>
        <source>This ZephLink ID does not exist. Check it and try again.</source>
        <translation>Такого ZephLink ID не существует. Проверьте его и повторите попытку.</translation>
    </message>
    <message>
        <source>Do not sync these files</source>
        <translation>Не синхронизировать эти файлы</translation>
    </message>
    <message>
        <source>Remove Lumivo Drive from this computer</source>
        <translation>Удаление Lumivo Drive с этого компьютера</translation>
    </message>
    <message>
        <source>Your account requires two-step verification. Set it up on your server, then sign in again.</source>
        <translation>Для вашей учетной записи требуется двухэтапная проверка. Настройте ее на сервере и войдите снова.</translation>
    </message>
    <message>
        <source>The file service is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>Файловая служба на сервере отключена. Попросите администратора включить ее.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Удалено</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Добавьте задание синхронизации</translation>
    </message>
    <message>
        <source>Share with others</source>
        <translation>Делитесь файлами с другими</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>Заблокированный файл</translation>
    </message>
    <message>
        <source>Do not close the applications (you will have to restart the computer later)</source>
        <translation>Не закрывать приложения (позже потребуется перезагрузить компьютер)</translation>
    </message>
    <message>
        <source>About Lumivo Drive</source>
        <translation>О приложении Lumivo Drive</translation>
    </message>
    <message>
        <source>File service off</source>
        <translation>Файловая служба отключена</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Вперед на %1 стр.</translation>
    </message>
    <message>
        <source>The local sync folder was moved or deleted. Put it back or choose a new one.</source>
        <translation>Локальная папка синхронизации перемещена или удалена. Верните ее на место или выберите новую.</translation>
    </message>
    <message>
        <source>This file cannot be shared. Check your permissions on the server.</source>
        <translation>Не удается поделиться этим файлом. Проверьте свои права доступа на сервере.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Возобновить</translation>
    </message>
    <message>
        <source>Click Finish to exit Setup.</source>
        <translation>Нажмите «Готово», чтобы выйти из программы установки.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Срок действия</translation>
    </message>
    <message>
        <source>Pause this connection</source>
        <translation>Приостановить это подключение</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>— вам открыт доступ к этому объекту.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Используемые файлы</translation>
    </message>
    <message>
        <source>Setup ended prematurely</source>
        <translation>Установка завершилась преждевременно</translation>
    </message>
    <message>
        <source>File sharing through ZephLink is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>Общий доступ к файлам через ZephLink на сервере отключен. Попросите администратора включить его.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Ссылка</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>Односторонняя синхронизация (только скачивание)</translation>
    </message>
    <message>
        <source>The files in both folders will be merged.</source>
        <translation>Файлы в обеих папках будут объединены.</translation>
    </message>
    <message>
        <source>This folder on your server is already synced with this computer.\nA second sync task for it would take up twice the disk space.</source>
        <translation>Эта папка на сервере уже синхронизируется с этим компьютером.\nИз-за второго задания синхронизации она займет вдвое больше места на диске.</translation>
    </message>
    <message>
        <source>Setup was interrupted</source>
        <translation>Установка прервана</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Enter the current code and try again.</source>
        <translation>Неверный код проверки. Введите действующий код и повторите попытку.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Двусторонняя синхронизация</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Включено</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Your server is blocking this computer&apos;s address. Ask your administrator to allow it.</source>
        <translation>Сервер блокирует адрес этого компьютера. Попросите администратора разрешить его.</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>Проверка имени пользователя и пароля…</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Печать</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive Setup</source>
        <translation>Добро пожаловать в программу установки Lumivo Drive</translation>
    </message>
    <message>
        <source>Enter no more than %1 characters.</source>
        <translation>Максимальное количество символов: %1.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Объединить</translation>
    </message>
    <message>
        <source>Sync all file attributes and permissions</source>
        <translation>Синхронизировать все атрибуты файлов и права доступа к ним</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available on &quot;%2&quot;. Click here to sync it.</source>
        <translation>На сервере «%2» доступна общая папка «%1». Щелкните здесь, чтобы синхронизировать ее.</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Ключевое слово</translation>
    </message>
    <message>
        <source>Create an empty folder for Lumivo Drive</source>
        <translation>Создать пустую папку для Lumivo Drive</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Фильтр файлов</translation>
    </message>
    <message>
        <source>Everything that you put into your sync folder appears on your server and on your other computers.</source>
        <translation>Все, что вы помещаете в папку синхронизации, появляется на сервере и на других ваших компьютерах.</translation>
    </message>
    <message>
        <source>Setup can change, repair or remove Lumivo Drive. Click Next to continue.</source>
        <translation>Программа установки может изменить, восстановить или удалить Lumivo Drive. Нажмите «Далее», чтобы продолжить.</translation>
    </message>
    <message>
        <source>Select a folder on your server and a folder on this computer.</source>
        <translation>Выберите папку на сервере и папку на этом компьютере.</translation>
    </message>
    <message>
        <source>Enter the address and port of the proxy server.</source>
        <translation>Введите адрес и порт прокси-сервера.</translation>
    </message>
    <message>
        <source>Watching for changes...</source>
        <translation>Отслеживание изменений…</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>Файл «%1» обновлен</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Start Lumivo Drive now</source>
        <translation>Запустить Lumivo Drive сейчас</translation>
    </message>
    <message>
        <source>March</source>
        <translation>март</translation>
    </message>
    <message>
        <source>Select what you want to do.</source>
        <translation>Выберите нужное действие.</translation>
    </message>
    <message>
        <source>Home folders are turned off on your server. Ask your administrator to turn them on.</source>
        <translation>Домашние папки на сервере отключены. Попросите администратора включить их.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Задания синхронизации</translation>
    </message>
    <message>
        <source>Ready to repair Lumivo Drive</source>
        <translation>Все готово к восстановлению Lumivo Drive</translation>
    </message>
    <message>
        <source>Skipped files</source>
        <translation>Пропускаемые файлы</translation>
    </message>
    <message>
        <source>Lumivo Drive is now installed on this computer.</source>
        <translation>Приложение Lumivo Drive установлено на этот компьютер.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Подготовка…</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>Язык системы</translation>
    </message>
    <message>
        <source>Your changes have not been saved.\nDo you want to leave without saving them?</source>
        <translation>Изменения не сохранены.\nВыйти без сохранения?</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>Папка уже синхронизируется</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Синхронизация…</translation>
    </message>
    <message>
        <source>Click Remove to remove Lumivo Drive from this computer. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>Нажмите «Удалить», чтобы удалить Lumivo Drive с этого компьютера. Нажмите «Назад», чтобы проверить свой выбор. Нажмите «Отмена», чтобы выйти из программы установки.</translation>
    </message>
    <message>
        <source>Welcome back to Lumivo Drive Setup</source>
        <translation>Вас снова приветствует программа установки Lumivo Drive</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>Прямое</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Файлы</translation>
    </message>
    <message>
        <source>This folder is already used by another sync task. Select another folder.</source>
        <translation>Эту папку уже использует другое задание синхронизации. Выберите другую папку.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>Нет места</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>Загрузка списка общих папок…</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Удаление связи…</translation>
    </message>
    <message>
        <source>Files being synced</source>
        <translation>Синхронизируемые файлы</translation>
    </message>
    <message>
        <source>You can change all settings later.</source>
        <translation>Все настройки можно будет изменить позже.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Показать состояние синхронизации</translation>
    </message>
    <message>
        <source>The folder on your server is not mounted. Mount it there and try again.</source>
        <translation>Папка на сервере не смонтирована. Смонтируйте ее там и повторите попытку.</translation>
    </message>
    <message>
        <source>Mark skipped files with an icon</source>
        <translation>Помечать пропускаемые файлы значком</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>Определение типа подключения…</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Далее</translation>
    </message>
    <message>
        <source>Both versions of files with different contents are kept.</source>
        <translation>Если содержимое файлов различается, сохраняются обе версии.</translation>
    </message>
    <message>
        <source>This folder is already synced. Do you want to add it again?</source>
        <translation>Эта папка уже синхронизируется. Добавить ее еще раз?</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Дополнительные настройки</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Check your permissions on the server.</source>
        <translation>Не удается показать версии этого файла. Проверьте свои права доступа на сервере.</translation>
    </message>
    <message>
        <source>The server&apos;s response could not be understood. Update Lumivo Drive and try again.</source>
        <translation>Не удалось распознать ответ сервера. Обновите Lumivo Drive и повторите попытку.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of Lumivo Drive?</source>
        <translation>Действительно отменить установку Lumivo Drive?</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Порт</translation>
    </message>
    <message>
        <source>A different server was found at this address</source>
        <translation>По этому адресу найден другой сервер</translation>
    </message>
    <message>
        <source>July</source>
        <translation>июль</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Некоторые файлы, которые нужно обновить, сейчас используются.</translation>
    </message>
    <message>
        <source>Lumivo Drive is ready.</source>
        <translation>Приложение Lumivo Drive готово к работе.</translation>
    </message>
    <message>
        <source>The sync database is damaged. Unlink this computer and link it again.</source>
        <translation>База данных синхронизации повреждена. Удалите связь этого компьютера с сервером и создайте ее снова.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>A newer version of Lumivo Drive is already installed on this computer. Remove it before you install this version.</source>
        <translation>На этом компьютере уже установлена более новая версия Lumivo Drive. Удалите ее, прежде чем устанавливать эту версию.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Добро пожаловать</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>Синхронизировать эту общую папку</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>Открыть главное окно</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>Текущий шаг:</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Ограничить доступ</translation>
    </message>
    <message>
        <source>Setup will install Lumivo Drive on this computer. Click Next to continue or Cancel to exit Setup.</source>
        <translation>Программа установит Lumivo Drive на этот компьютер. Нажмите «Далее», чтобы продолжить, или «Отмена», чтобы выйти из программы установки.</translation>
    </message>
    <message>
        <source>Enter the address of your server or its ZephLink ID, your username and your password.</source>
        <translation>Введите адрес сервера или его ZephLink ID, имя пользователя и пароль.</translation>
    </message>
    <message>
        <source>Could not create the folder &quot;%1&quot;. Check its path and your permissions.</source>
        <translation>Не удалось создать папку «%1». Проверьте путь к ней и свои права доступа.</translation>
    </message>
    <message>
        <source>Setup ended because of an error.\nYour computer has not been changed.</source>
        <translation>Установка прекращена из-за ошибки.\nНа компьютере ничего не изменено.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files to continue syncing.</source>
        <translation>Ваша квота на сервере исчерпана. Удалите часть файлов, чтобы продолжить синхронизацию.</translation>
    </message>
    <message>
        <source>Folder filter</source>
        <translation>Фильтр папок</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Check it in the connection settings.</source>
        <translation>Не удалось проверить подлинность сертификата сервера. Просмотрите его в настройках подключения.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Выбрать другую папку</translation>
    </message>
    <message>
        <source>You can open Lumivo Drive at any time from the tray.</source>
        <translation>Lumivo Drive можно в любой момент открыть из области уведомлений.</translation>
    </message>
    <message>
        <source>The file was changed in two places at the same time. Both versions have been kept. Delete the one that you do not need.</source>
        <translation>Файл был одновременно изменен в двух местах. Сохранены обе версии. Удалите ту, которая вам не нужна.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it in the connection settings.</source>
        <translation>Сертификат сервера изменился. Проверьте его в настройках подключения.</translation>
    </message>
    <message>
        <source>Encrypt the connection (SSL)</source>
        <translation>Шифровать подключение (SSL)</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Имя папки</translation>
    </message>
    <message>
        <source>Create a link to a file and send it to anyone, with a password and an end date if you like.</source>
        <translation>Создайте ссылку на файл и отправьте ее кому угодно — при желании с паролем и сроком действия.</translation>
    </message>
    <message>
        <source>Enter the verification code for your account.</source>
        <translation>Введите код проверки для своей учетной записи.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Информация</translation>
    </message>
    <message>
        <source>You have chosen to remove Lumivo Drive from this computer.</source>
        <translation>Вы выбрали удаление Lumivo Drive с этого компьютера.</translation>
    </message>
    <message>
        <source>Changes on a network drive cannot be detected. Select a folder on a local disk.</source>
        <translation>Отслеживать изменения на сетевом диске невозможно. Выберите папку на локальном диске.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Enter another name.</source>
        <translation>Папка с таким именем уже существует. Введите другое имя.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>пятница</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Настройки прокси</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Открыть файл</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Изменить подключение</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Синхронизировано</translation>
    </message>
    <message>
        <source>The connection to your server was lost. It will be restored automatically.</source>
        <translation>Подключение к серверу потеряно. Оно будет восстановлено автоматически.</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Нет прав доступа</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Скачано</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>Объектов: %1</translation>
    </message>
    <message>
        <source>Do you want to stop syncing &quot;%1&quot; with &quot;%2&quot;?\nNo files will be deleted.</source>
        <translation>Прекратить синхронизацию «%1» с «%2»?\nФайлы не будут удалены.</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Изменить локальную папку</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>Подключение работает.</translation>
    </message>
    <message>
        <source>Setup complete</source>
        <translation>Настройка завершена</translation>
    </message>
    <message>
        <source>Icons in the tray</source>
        <translation>Значки в области уведомлений</translation>
    </message>
    <message>
        <source>May</source>
        <translation>май</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Режим синхронизации</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Прошлый месяц</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>Посмотреть предыдущие версии</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>%1 ч назад</translation>
    </message>
    <message>
        <source>Files and folders that match these rules are not synced.</source>
        <translation>Файлы и папки, соответствующие этим правилам, не синхронизируются.</translation>
    </message>
    <message>
        <source>Removes Lumivo Drive from this computer. Your synced files are kept.</source>
        <translation>Удаляет Lumivo Drive с этого компьютера. Синхронизированные файлы сохраняются.</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Управление подключениями</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Select a folder on another disk.</source>
        <translation>На этом диске недостаточно места. Выберите папку на другом диске.</translation>
    </message>
    <message>
        <source>File names to skip</source>
        <translation>Пропускаемые имена файлов</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>четверг</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Возобновить синхронизацию</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Недавно измененные файлы</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>IP address, domain name or ZephLink ID</source>
        <translation>IP-адрес, доменное имя или ZephLink ID</translation>
    </message>
    <message>
        <source>Show Lumivo Drive in the context menu</source>
        <translation>Показывать Lumivo Drive в контекстном меню</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old. Update it on this computer.</source>
        <translation>Эта версия Lumivo Drive устарела. Обновите ее на этом компьютере.</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Select another folder.</source>
        <translation>Эту папку нельзя синхронизировать. Выберите другую папку.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>Скачивание отменено.</translation>
    </message>
    <message>
        <source>Limit the number of downloads</source>
        <translation>Ограничить количество скачиваний</translation>
    </message>
    <message>
        <source>Show sync status icons on files</source>
        <translation>Показывать на файлах значки состояния синхронизации</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>Это поле обязательно для заполнения.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Показать руководство</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Связать с другим сервером</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>Я не принимаю условия лицензионного соглашения</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Несовместимые версии</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Первая страница</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Установить</translation>
    </message>
    <message>
        <source>Access denied</source>
        <translation>Доступ запрещен</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <translation>Введите 6-значный код проверки</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Понятно</translation>
    </message>
    <message>
        <source>The disk with the local sync folder is not connected. Connect it to continue syncing.</source>
        <translation>Диск с локальной папкой синхронизации не подключен. Подключите его, чтобы продолжить синхронизацию.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Больше не показывать это сообщение</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Начать сейчас</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>Найти в локальной сети</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Настроить прокси вручную</translation>
    </message>
    <message>
        <source>You can open the files in this folder but not change them.</source>
        <translation>Файлы в этой папке можно открывать, но нельзя изменять.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>Слишком много неудачных попыток. Подождите несколько минут и повторите попытку.</translation>
    </message>
    <message>
        <source>September</source>
        <translation>сентябрь</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on your server.</source>
        <translation>Папка не пуста. Ее файлы будут объединены с файлами на сервере.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Прошлая неделя</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>Скачивание завершено.</translation>
    </message>
    <message>
        <source>You can bring back a version that you overwrote or deleted.</source>
        <translation>Можно вернуть версию, которую вы перезаписали или удалили.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>воскресенье</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>Папка синхронизации</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>Требуется обновление</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Общий доступ</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>вторник</translation>
    </message>
    <message>
        <source>Start Lumivo Drive when you sign in</source>
        <translation>Запускать Lumivo Drive при входе в систему</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Управление общими папками</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>%1 мин назад</translation>
    </message>
    <message>
        <source>This shared folder will no longer be synced. The files that are already on this computer will be kept.</source>
        <translation>Эта общая папка больше не будет синхронизироваться. Файлы, которые уже находятся на этом компьютере, будут сохранены.</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>Пропускаемые расширения файлов</translation>
    </message>
    <message>
        <source>Relay</source>
        <translation>Через ретранслятор</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Не удалось войти</translation>
    </message>
    <message>
        <source>Lumivo Drive has no features that can be chosen separately.</source>
        <translation>В Lumivo Drive нет компонентов, которые можно выбрать отдельно.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator. Lumivo Drive will be installed only for you.\nDo you want to continue?</source>
        <translation>Вы вошли в систему без прав администратора. Приложение Lumivo Drive будет установлено только для вас.\nПродолжить?</translation>
    </message>
    <message>
        <source>Links cannot be created because the file service is turned off. Ask your administrator to turn it on.</source>
        <translation>Создать ссылку нельзя, так как файловая служба отключена. Попросите администратора включить ее.</translation>
    </message>
    <message>
        <source>Close the applications and try to restart them afterward</source>
        <translation>Закрыть приложения, а затем попытаться снова их запустить</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Лицензионное соглашение</translation>
    </message>
    <message>
        <source>The folder could not be checked because of a system error. Try again later.</source>
        <translation>Не удалось проверить папку из-за системной ошибки. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is already installed. Do you want to install it again?</source>
        <translation>Эта версия Lumivo Drive уже установлена. Установить ее еще раз?</translation>
    </message>
    <message>
        <source>Set a start date</source>
        <translation>Задать дату начала</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Управление</translation>
    </message>
    <message>
        <source>This shared folder is not mounted on your server. Mount it there and try again.</source>
        <translation>Эта общая папка не смонтирована на сервере. Смонтируйте ее там и повторите попытку.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Локальная сеть</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Все события</translation>
    </message>
    <message>
        <source>Unlink this connection</source>
        <translation>Удалить эту связь</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>Подключение нестабильно</translation>
    </message>
    <message>
        <source>This computer and your server now keep these folders in sync.\nYou can add more sync tasks at any time.</source>
        <translation>Теперь эти папки синхронизируются между этим компьютером и сервером.\nДобавить другие задания синхронизации можно в любой момент.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Не синхронизировать эту папку</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed.\nContinue only if you know why.</source>
        <translation>Сертификат сервера изменился.\nПродолжайте, только если вам известна причина.</translation>
    </message>
    <message>
        <source>Maximum file size (MB)</source>
        <translation>Максимальный размер файла (МБ)</translation>
    </message>
    <message>
        <source>Keep the version that was changed last</source>
        <translation>Сохранить версию, измененную последней</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Поиск серверов в локальной сети</translation>
    </message>
    <message>
        <source>Your account is not allowed to sync this folder. Ask your administrator for permission.</source>
        <translation>Вашей учетной записи не разрешено синхронизировать эту папку. Попросите администратора предоставить разрешение.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Папки</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Только что</translation>
    </message>
    <message>
        <source>Setup is ready to repair Lumivo Drive.</source>
        <translation>Можно начинать восстановление Lumivo Drive.</translation>
    </message>
    <message>
        <source>You can only read this folder. Changes on this computer will not be uploaded.</source>
        <translation>Эта папка доступна вам только для чтения. Изменения на этом компьютере не будут отправляться на сервер.</translation>
    </message>
    <message>
        <source>You do not have access to this folder. Ask your administrator for permission.</source>
        <translation>У вас нет доступа к этой папке. Попросите администратора предоставить разрешение.</translation>
    </message>
    <message>
        <source>No entries found</source>
        <translation>Записи не найдены</translation>
    </message>
    <message>
        <source>Your files are being synced. You can keep working in the meantime.</source>
        <translation>Файлы синхронизируются. Тем временем вы можете продолжать работу.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.\nContinue only if you trust this network.</source>
        <translation>Не удалось проверить подлинность сертификата сервера.\nПродолжайте, только если доверяете этой сети.</translation>
    </message>
    <message>
        <source>Files left to sync: %1</source>
        <translation>Осталось синхронизировать файлов: %1</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive</source>
        <translation>Добро пожаловать в Lumivo Drive</translation>
    </message>
    <message>
        <source>Set an end date</source>
        <translation>Задать дату окончания</translation>
    </message>
    <message>
        <source>The sync task could not be removed. Try again later.</source>
        <translation>Не удалось удалить задание синхронизации. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>Click the icon to see which files are being synced.</source>
        <translation>Щелкните значок, чтобы увидеть, какие файлы синхронизируются.</translation>
    </message>
    <message>
        <source>Your sync folder</source>
        <translation>Ваша папка синхронизации</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Ask your administrator to install a valid one.</source>
        <translation>Не удалось проверить подлинность сертификата сервера. Попросите администратора установить действительный сертификат.</translation>
    </message>
    <message>
        <source>The server has been replaced. Link this computer again.</source>
        <translation>Сервер был заменен. Свяжите с ним этот компьютер снова.</translation>
    </message>
    <message>
        <source>Follow these steps to link this computer to your server.</source>
        <translation>Выполните эти шаги, чтобы связать этот компьютер с сервером.</translation>
    </message>
    <message>
        <source>Proxy server</source>
        <translation>Прокси-сервер</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Прокси</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Обновленные файлы</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Все равно продолжить</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Icons on local files</source>
        <translation>Значки на локальных файлах</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>Нет доступных действий</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Имя файла</translation>
    </message>
    <message>
        <source>Syncing stopped</source>
        <translation>Синхронизация остановлена</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Локальная папка синхронизации</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Отключено</translation>
    </message>
    <message>
        <source>Your server is still indexing &quot;%1&quot;. You can sync it when indexing is complete.</source>
        <translation>Сервер еще индексирует папку «%1». Ее можно будет синхронизировать после завершения индексации.</translation>
    </message>
    <message>
        <source>When a file has been changed in two places</source>
        <translation>Если файл изменен в двух местах</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not empty.\nDo you want to use it anyway?</source>
        <translation>Папка «%1» не пуста.\nВсе равно использовать ее?</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Изменение папки</translation>
    </message>
    <message>
        <source>Sync your home folder using the recommended settings.</source>
        <translation>Синхронизируйте домашнюю папку, используя рекомендуемые настройки.</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>Загрузка списка папок…</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>среда</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>SSL-шифрование</translation>
    </message>
    <message>
        <source>Ready to install Lumivo Drive</source>
        <translation>Все готово к установке Lumivo Drive</translation>
    </message>
    <message>
        <source>Run Setup again whenever you want to install Lumivo Drive.</source>
        <translation>Когда захотите установить Lumivo Drive, запустите программу установки снова.</translation>
    </message>
    <message>
        <source>Your home folder on the server now syncs with this computer.</source>
        <translation>Теперь ваша домашняя папка на сервере синхронизируется с этим компьютером.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Сведения о сервере</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Приостановить</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Приостановить синхронизацию</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>суббота</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete some files to continue syncing.</source>
        <translation>Квота этой общей папки исчерпана. Удалите часть файлов, чтобы продолжить синхронизацию.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Сводка</translation>
    </message>
    <message>
        <source>Your new sync task</source>
        <translation>Ваше новое задание синхронизации</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>История скачиваний</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Скачивание…</translation>
    </message>
    <message>
        <source>The new language takes effect the next time Lumivo Drive starts.</source>
        <translation>Новый язык будет применен при следующем запуске Lumivo Drive.</translation>
    </message>
    <message>
        <source>Installing Lumivo Drive</source>
        <translation>Выполняется установка Lumivo Drive</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Показывать уведомления на рабочем столе</translation>
    </message>
    <message>
        <source>Quick setup suits most users. You can change everything later.</source>
        <translation>Быстрая настройка подходит большинству пользователей. Позже все можно будет изменить.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full.</source>
        <translation>Диск сервера заполнен.</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>Вернитесь в прошлое</translation>
    </message>
</context>
</TS>

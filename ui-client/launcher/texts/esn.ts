<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Select the local folder that you want to sync with your server.</source>
        <translation>Seleccione la carpeta local que desea sincronizar con su servidor.</translation>
    </message>
    <message>
        <source>Could not reach the ZephLink service. Check your network connection and try again.</source>
        <translation>No se ha podido acceder al servicio ZephLink. Compruebe la conexión de red e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Filter rules</source>
        <translation>Reglas de filtrado</translation>
    </message>
    <message>
        <source>Mount point not allowed</source>
        <translation>Punto de montaje no permitido</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Intervalo de fechas</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on your server. Select another folder.</source>
        <translation>Esta carpeta compartida ya no existe en su servidor. Seleccione otra carpeta.</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>Introduzca su nombre de usuario.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>Los archivos con estos nombres no se sincronizarán.</translation>
    </message>
    <message>
        <source>Could not connect to your server. Check your network connection and try again.</source>
        <translation>No se ha podido conectar con su servidor. Compruebe la conexión de red e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparar</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Solo descarga</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Dirección de sincronización</translation>
    </message>
    <message>
        <source>Your first sync task on this server</source>
        <translation>Su primera tarea de sincronización en este servidor</translation>
    </message>
    <message>
        <source>Restores missing or damaged files, shortcuts and registry entries.</source>
        <translation>Restaura los archivos, accesos directos y entradas del Registro que falten o estén dañados.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>Haga clic aquí para actualizar</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Ruta de la carpeta</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Carpetas compartidas</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>No, gracias</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Advertencia de certificado</translation>
    </message>
    <message>
        <source>Change connection settings</source>
        <translation>Cambiar los ajustes de conexión</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Comprobando la conexión…</translation>
    </message>
    <message>
        <source>Lumivo Drive Setup</source>
        <translation>Instalación de Lumivo Drive</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Setup is ready to install Lumivo Drive on this computer.</source>
        <translation>El programa de instalación está listo para instalar Lumivo Drive en este equipo.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nueva carpeta compartida</translation>
    </message>
    <message>
        <source>No usable folder was found. Ask your administrator for access to a shared folder.</source>
        <translation>No se ha encontrado ninguna carpeta que se pueda usar. Solicite a su administrador acceso a una carpeta compartida.</translation>
    </message>
    <message>
        <source>Could not enable syncing for this shared folder. Try again later.</source>
        <translation>No se ha podido activar la sincronización de esta carpeta compartida. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Hasta</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Volver a sincronizar esta carpeta</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>%1 d ago</source>
        <translation>Hace %1 d</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is a mount point and cannot be synced. Select another folder.</source>
        <translation>La carpeta «%1» es un punto de montaje y no se puede sincronizar. Seleccione otra carpeta.</translation>
    </message>
    <message>
        <source>This computer is already linked to &quot;%1&quot;. Edit the existing connection instead.</source>
        <translation>Este equipo ya está vinculado a «%1». En su lugar, edite la conexión existente.</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Actualización disponible</translation>
    </message>
    <message>
        <source>Enter a port number from 1 to 65535.</source>
        <translation>Introduzca un número de puerto entre 1 y 65535.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>Abrir la carpeta de sincronización</translation>
    </message>
    <message>
        <source>Lumivo Drive has been installed</source>
        <translation>Se ha instalado Lumivo Drive</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Desvincular</translation>
    </message>
    <message>
        <source>This folder overlaps with the folder of another sync task. Select another folder.</source>
        <translation>Esta carpeta se solapa con la de otra tarea de sincronización. Seleccione otra carpeta.</translation>
    </message>
    <message>
        <source>The folders on your server could not be listed. Check your network connection and try again.</source>
        <translation>No se ha podido mostrar la lista de carpetas de su servidor. Compruebe la conexión de red e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Requiere atención</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it before you continue.</source>
        <translation>El certificado de su servidor ha cambiado. Compruébelo antes de continuar.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Última página</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>En ejecución</translation>
    </message>
    <message>
        <source>June</source>
        <translation>junio</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>La actualización ha fallado. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.</source>
        <translation>No se ha podido verificar el certificado de su servidor.</translation>
    </message>
    <message>
        <source>Please wait. This may take several minutes.</source>
        <translation>Espere. Esta operación puede tardar varios minutos.</translation>
    </message>
    <message>
        <source>Choose which features are installed</source>
        <translation>Elegir las funciones que se instalarán</translation>
    </message>
    <message>
        <source>Your files, wherever you work</source>
        <translation>Sus archivos, allá donde trabaje</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Volver a sincronizar estas carpetas</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full. Free up some space to continue syncing.</source>
        <translation>El disco de este equipo está lleno. Libere espacio para continuar la sincronización.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Usar un icono en blanco y negro en la bandeja del sistema</translation>
    </message>
    <message>
        <source>Some fields are not filled in correctly. Correct them and try again.</source>
        <translation>Algunos campos no se han rellenado correctamente. Corríjalos e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Setup was interrupted. Your computer has not been changed.</source>
        <translation>La instalación se ha interrumpido. No se ha modificado el equipo.</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Carpeta no encontrada</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Elegir las carpetas que se van a sincronizar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Choose a folder on your server and the local folder to sync it with.</source>
        <translation>Elija una carpeta de su servidor y la carpeta local con la que desea sincronizarla.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a dot</source>
        <translation>Omitir los archivos y carpetas cuyo nombre empiece por un punto</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Intervalo personalizado</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Check both and try again.</source>
        <translation>El nombre de usuario o la contraseña no son correctos. Compruebe ambos e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>This address belongs to another server. Check the address and try again.</source>
        <translation>Esta dirección corresponde a otro servidor. Compruebe la dirección e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo de archivo</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>Elegir el modo de configuración</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>lunes</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files or ask your administrator for more space.</source>
        <translation>Su cuota en el servidor se ha agotado. Elimine algunos archivos o solicite más espacio a su administrador.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>agosto</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Iniciando…</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached. Stop syncing one of them first.</source>
        <translation>Se ha alcanzado el número máximo de carpetas compartidas. Primero deje de sincronizar una de ellas.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Usar los ajustes de proxy del sistema</translation>
    </message>
    <message>
        <source>Keep both versions and rename the local one</source>
        <translation>Conservar ambas versiones y cambiar el nombre de la local</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has stopped syncing. Open Lumivo Drive for details.</source>
        <translation>La sincronización de «%1» se ha detenido. Abra Lumivo Drive para ver los detalles.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>ZephLink ID</source>
        <translation>ID de ZephLink</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions for this folder. Choose another direction.</source>
        <translation>La dirección de sincronización no se corresponde con sus permisos para esta carpeta. Elija otra dirección.</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Más detalles</translation>
    </message>
    <message>
        <source>October</source>
        <translation>octubre</translation>
    </message>
    <message>
        <source>February</source>
        <translation>febrero</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old. Update it on your server.</source>
        <translation>Esta versión de Lumivo Drive Server es demasiado antigua. Actualícela en su servidor.</translation>
    </message>
    <message>
        <source>Sync rules</source>
        <translation>Reglas de sincronización</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. Check your permissions on the server.</source>
        <translation>Este archivo no se puede descargar. Compruebe sus permisos en el servidor.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Conectando…</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>No usar proxy</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Carpeta compartida</translation>
    </message>
    <message>
        <source>Resume this connection</source>
        <translation>Reanudar esta conexión</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Obtener enlace</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>The icon in the tray shows at a glance whether your files are in sync.</source>
        <translation>El icono de la bandeja del sistema muestra de un vistazo si sus archivos están sincronizados.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Vincular de nuevo</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Solo lectura</translation>
    </message>
    <message>
        <source>April</source>
        <translation>abril</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Ajustes de red</translation>
    </message>
    <message>
        <source>Setup is applying your choices.</source>
        <translation>El programa de instalación está aplicando las opciones elegidas.</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They will remain on your server.</source>
        <translation>Las carpetas que desmarque aquí se quitarán de este equipo. Seguirán en su servidor.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full. Free up some space on it to continue syncing.</source>
        <translation>El disco de su servidor está lleno. Libere espacio en él para continuar la sincronización.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>The download failed. Check your network connection and try again.</source>
        <translation>La descarga ha fallado. Compruebe la conexión de red e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Lumivo Drive</source>
        <translation>Lumivo Drive</translation>
    </message>
    <message>
        <source>Save and copy link</source>
        <translation>Guardar y copiar enlace</translation>
    </message>
    <message>
        <source>Enter your server&apos;s address and your account details.</source>
        <translation>Introduzca la dirección de su servidor y los datos de su cuenta.</translation>
    </message>
    <message>
        <source>Let&apos;s get started</source>
        <translation>Para empezar</translation>
    </message>
    <message>
        <source>There are no changes to save.</source>
        <translation>No hay cambios que guardar.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 páginas anteriores</translation>
    </message>
    <message>
        <source>To install Lumivo Drive later, run Setup again.</source>
        <translation>Para instalar Lumivo Drive más tarde, vuelva a ejecutar el programa de instalación.</translation>
    </message>
    <message>
        <source>Right-click a file in a synced folder to share it or to see its earlier versions.</source>
        <translation>Haga clic con el botón derecho en un archivo de una carpeta sincronizada para compartirlo o ver sus versiones anteriores.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ayer</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Información de estado</translation>
    </message>
    <message>
        <source>Lumivo Drive could not be started. Restart the computer and try again.</source>
        <translation>No se ha podido iniciar Lumivo Drive. Reinicie el equipo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Keep the version on the server</source>
        <translation>Conservar la versión del servidor</translation>
    </message>
    <message>
        <source>January</source>
        <translation>enero</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old for your server. Update it to version %1 or later.</source>
        <translation>Esta versión de Lumivo Drive es demasiado antigua para su servidor. Actualícela a la versión %1 o posterior.</translation>
    </message>
    <message>
        <source>Change, repair or remove Lumivo Drive</source>
        <translation>Cambiar, reparar o quitar Lumivo Drive</translation>
    </message>
    <message>
        <source>Connect through ZephLink</source>
        <translation>Conectar mediante ZephLink</translation>
    </message>
    <message>
        <source>Click Install to begin. Click Back to review or change your choices. Click Cancel to exit Setup.</source>
        <translation>Haga clic en «Instalar» para empezar. Haga clic en «Atrás» para revisar o cambiar las opciones elegidas. Haga clic en «Cancelar» para salir de la instalación.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>Se ha producido un error. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>Acepto los términos del contrato de licencia</translation>
    </message>
    <message>
        <source>Selective sync is not available yet. Update Lumivo Drive Server on your server to use it.</source>
        <translation>La sincronización selectiva aún no está disponible. Para utilizarla, actualice Lumivo Drive Server en su servidor.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renombrado</translation>
    </message>
    <message>
        <source>This folder is read-only</source>
        <translation>Esta carpeta es de solo lectura</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Ready to remove Lumivo Drive</source>
        <translation>Listo para quitar Lumivo Drive</translation>
    </message>
    <message>
        <source>Choose what to sync with this computer and where to keep it.</source>
        <translation>Elija qué desea sincronizar con este equipo y dónde guardarlo.</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Subido</translation>
    </message>
    <message>
        <source>Your access was revoked, and the synced files were removed from this computer. Contact your administrator.</source>
        <translation>Se ha revocado su acceso y los archivos sincronizados se han quitado de este equipo. Póngase en contacto con su administrador.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Subiendo…</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Aplicando los ajustes…</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Lea con atención el siguiente contrato de licencia.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Modo de combinación</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>No sincronizar estas carpetas</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Click Repair to begin. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>Haga clic en «Reparar» para empezar. Haga clic en «Atrás» para revisar su elección. Haga clic en «Cancelar» para salir de la instalación.</translation>
    </message>
    <message>
        <source>You cannot write to this folder. Change its permissions or select another folder.</source>
        <translation>No puede escribir en esta carpeta. Cambie los permisos de la carpeta o seleccione otra.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Sincronización selectiva</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>December</source>
        <translation>diciembre</translation>
    </message>
    <message>
        <source>Enter a file size from %1 to %2 MB.</source>
        <translation>Introduzca un tamaño de archivo entre %1 y %2 MB.</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files that are already on this computer will be kept.</source>
        <translation>¿Dejar de sincronizar «%1»? Los archivos que ya están en este equipo se conservarán.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Configuración rápida</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Configuración avanzada</translation>
    </message>
    <message>
        <source>November</source>
        <translation>noviembre</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Seleccionar una carpeta</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Dirección del servidor</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Su cuota en el servidor se ha agotado.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Al hacer doble clic en el icono de la bandeja del sistema</translation>
    </message>
    <message>
        <source>Lumivo Drive is initializing...</source>
        <translation>Inicializando Lumivo Drive…</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Comprobando archivos…</translation>
    </message>
    <message>
        <source>This computer is now linked to &quot;%1&quot;. Syncing starts right away.</source>
        <translation>Este equipo ha quedado vinculado a «%1». La sincronización empieza enseguida.</translation>
    </message>
    <message>
        <source>Everything in sync</source>
        <translation>Sincronización al día</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Actualizando…</translation>
    </message>
    <message>
        <source>Custom period</source>
        <translation>Periodo personalizado</translation>
    </message>
    <message>
        <source>Check the sync status</source>
        <translation>Consultar el estado de la sincronización</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Cargando…</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactivo</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update:</source>
        <translation>Las siguientes aplicaciones están usando archivos que el programa de instalación debe actualizar:</translation>
    </message>
    <message>
        <source>Open Lumivo Drive</source>
        <translation>Abrir Lumivo Drive</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction and the sync rules yourself.</source>
        <translation>Elija las carpetas, la dirección y las reglas de sincronización según sus necesidades.</translation>
    </message>
    <message>
        <source>Repair the installed files</source>
        <translation>Reparar los archivos instalados</translation>
    </message>
    <message>
        <source>Enter a number of versions greater than zero.</source>
        <translation>Introduzca un número de versiones mayor que cero.</translation>
    </message>
    <message>
        <source>This username does not exist on your server. Check it and try again.</source>
        <translation>Este nombre de usuario no existe en su servidor. Compruébelo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Update Lumivo Drive</source>
        <translation>Actualizar Lumivo Drive</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>Más información</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Fecha de creación</translation>
    </message>
    <message>
        <source>Keep the files on this computer and on your server in sync.</source>
        <translation>Mantenga sincronizados los archivos de este equipo y de su servidor.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>This folder is already synced by another cloud sync app. Select another folder to avoid conflicts.</source>
        <translation>Otra aplicación de sincronización en la nube ya sincroniza esta carpeta. Seleccione otra carpeta para evitar conflictos.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Nombre del equipo</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>The proxy requires a username and a password</source>
        <translation>El proxy requiere un nombre de usuario y una contraseña</translation>
    </message>
    <message>
        <source>The server did not accept the request. Check your entries and try again.</source>
        <translation>El servidor no ha aceptado la solicitud. Compruebe los datos introducidos e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old for Lumivo Drive on this computer. Update it on your server to version %1 or later.</source>
        <translation>Esta versión de Lumivo Drive Server es demasiado antigua para la versión de Lumivo Drive instalada en este equipo. Actualice Lumivo Drive Server a la versión %1 o posterior.</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Enviar a</translation>
    </message>
    <message>
        <source>The ZephLink service reported an error. Try again later.</source>
        <translation>El servicio ZephLink ha notificado un error. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>Close these applications and click Retry, or click Ignore and restart the computer later.</source>
        <translation>Cierre estas aplicaciones y haga clic en «Reintentar», o bien haga clic en «Omitir» y reinicie el equipo más tarde.</translation>
    </message>
    <message>
        <source>Lets you change which features are installed.</source>
        <translation>Permite cambiar las funciones que se instalan.</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from &quot;%1&quot;?\nThe files that are already on this computer will be kept.</source>
        <translation>¿Desea desvincular este equipo de «%1»?\nLos archivos que ya están en este equipo se conservarán.</translation>
    </message>
    <message>
        <source>This folder is used by a backup task. Select another folder.</source>
        <translation>Una tarea de copia de seguridad usa esta carpeta. Seleccione otra carpeta.</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full.</source>
        <translation>El disco de este equipo está lleno.</translation>
    </message>
    <message>
        <source>This folder is not empty</source>
        <translation>Esta carpeta no está vacía</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Abrir la carpeta contenedora</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Tipo de conexión</translation>
    </message>
    <message>
        <source>This ZephLink ID does not exist. Check it and try again.</source>
        <translation>Este ID de ZephLink no existe. Compruébelo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Do not sync these files</source>
        <translation>No sincronizar estos archivos</translation>
    </message>
    <message>
        <source>Remove Lumivo Drive from this computer</source>
        <translation>Quitar Lumivo Drive de este equipo</translation>
    </message>
    <message>
        <source>Your account requires two-step verification. Set it up on your server, then sign in again.</source>
        <translation>Su cuenta requiere la verificación en dos pasos. Configúrela en su servidor y vuelva a iniciar sesión.</translation>
    </message>
    <message>
        <source>The file service is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>El servicio de archivos está desactivado en su servidor. Pida a su administrador que lo active.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Eliminado</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Añadir una tarea de sincronización</translation>
    </message>
    <message>
        <source>Share with others</source>
        <translation>Compartir con otras personas</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>Archivo bloqueado</translation>
    </message>
    <message>
        <source>Do not close the applications (you will have to restart the computer later)</source>
        <translation>No cerrar las aplicaciones (tendrá que reiniciar el equipo más tarde)</translation>
    </message>
    <message>
        <source>About Lumivo Drive</source>
        <translation>Acerca de Lumivo Drive</translation>
    </message>
    <message>
        <source>File service off</source>
        <translation>Servicio de archivos desactivado</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 páginas siguientes</translation>
    </message>
    <message>
        <source>The local sync folder was moved or deleted. Put it back or choose a new one.</source>
        <translation>La carpeta de sincronización local se ha movido o eliminado. Vuelva a colocarla en su sitio o elija una nueva.</translation>
    </message>
    <message>
        <source>This file cannot be shared. Check your permissions on the server.</source>
        <translation>Este archivo no se puede compartir. Compruebe sus permisos en el servidor.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>Click Finish to exit Setup.</source>
        <translation>Haga clic en «Finalizar» para salir de la instalación.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Caduca después de</translation>
    </message>
    <message>
        <source>Pause this connection</source>
        <translation>Pausar esta conexión</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>se ha compartido con usted.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Archivos en uso</translation>
    </message>
    <message>
        <source>Setup ended prematurely</source>
        <translation>La instalación ha finalizado antes de tiempo</translation>
    </message>
    <message>
        <source>File sharing through ZephLink is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>El uso compartido de archivos mediante ZephLink está desactivado en su servidor. Pida a su administrador que lo active.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Enlace</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>Sincronización unidireccional (solo descarga)</translation>
    </message>
    <message>
        <source>The files in both folders will be merged.</source>
        <translation>Los archivos de ambas carpetas se combinarán.</translation>
    </message>
    <message>
        <source>This folder on your server is already synced with this computer.\nA second sync task for it would take up twice the disk space.</source>
        <translation>Esta carpeta de su servidor ya se sincroniza con este equipo.\nUna segunda tarea de sincronización ocuparía el doble de espacio en disco.</translation>
    </message>
    <message>
        <source>Setup was interrupted</source>
        <translation>La instalación se ha interrumpido</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Enter the current code and try again.</source>
        <translation>El código de verificación no es correcto. Introduzca el código actual e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Sincronización bidireccional</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Your server is blocking this computer&apos;s address. Ask your administrator to allow it.</source>
        <translation>Su servidor bloquea la dirección de este equipo. Pida a su administrador que la permita.</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>Comprobando el nombre de usuario y la contraseña…</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive Setup</source>
        <translation>Le damos la bienvenida a la instalación de Lumivo Drive</translation>
    </message>
    <message>
        <source>Enter no more than %1 characters.</source>
        <translation>Introduzca %1 caracteres como máximo.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Combinar</translation>
    </message>
    <message>
        <source>Sync all file attributes and permissions</source>
        <translation>Sincronizar todos los atributos y permisos de los archivos</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available on &quot;%2&quot;. Click here to sync it.</source>
        <translation>La carpeta compartida «%1» está disponible en «%2». Haga clic aquí para sincronizarla.</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Palabra clave</translation>
    </message>
    <message>
        <source>Create an empty folder for Lumivo Drive</source>
        <translation>Crear una carpeta vacía para Lumivo Drive</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filtro de archivos</translation>
    </message>
    <message>
        <source>Everything that you put into your sync folder appears on your server and on your other computers.</source>
        <translation>Cuanto coloque en su carpeta de sincronización aparecerá en su servidor y en sus demás equipos.</translation>
    </message>
    <message>
        <source>Setup can change, repair or remove Lumivo Drive. Click Next to continue.</source>
        <translation>El programa de instalación puede cambiar, reparar o quitar Lumivo Drive. Haga clic en «Siguiente» para continuar.</translation>
    </message>
    <message>
        <source>Select a folder on your server and a folder on this computer.</source>
        <translation>Seleccione una carpeta de su servidor y una carpeta de este equipo.</translation>
    </message>
    <message>
        <source>Enter the address and port of the proxy server.</source>
        <translation>Introduzca la dirección y el puerto del servidor proxy.</translation>
    </message>
    <message>
        <source>Watching for changes...</source>
        <translation>Supervisando los cambios…</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Cambiar</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>«%1» se ha actualizado</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Start Lumivo Drive now</source>
        <translation>Iniciar Lumivo Drive ahora</translation>
    </message>
    <message>
        <source>March</source>
        <translation>marzo</translation>
    </message>
    <message>
        <source>Select what you want to do.</source>
        <translation>Seleccione lo que desea hacer.</translation>
    </message>
    <message>
        <source>Home folders are turned off on your server. Ask your administrator to turn them on.</source>
        <translation>Las carpetas personales están desactivadas en su servidor. Pida a su administrador que las active.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Tareas de sincronización</translation>
    </message>
    <message>
        <source>Ready to repair Lumivo Drive</source>
        <translation>Listo para reparar Lumivo Drive</translation>
    </message>
    <message>
        <source>Skipped files</source>
        <translation>Archivos omitidos</translation>
    </message>
    <message>
        <source>Lumivo Drive is now installed on this computer.</source>
        <translation>Lumivo Drive ya está instalado en este equipo.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparando…</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>Idioma del sistema</translation>
    </message>
    <message>
        <source>Your changes have not been saved.\nDo you want to leave without saving them?</source>
        <translation>Los cambios no se han guardado.\n¿Desea salir sin guardarlos?</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>Carpeta ya sincronizada</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Sincronizando…</translation>
    </message>
    <message>
        <source>Click Remove to remove Lumivo Drive from this computer. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>Haga clic en «Quitar» para quitar Lumivo Drive de este equipo. Haga clic en «Atrás» para revisar su elección. Haga clic en «Cancelar» para salir de la instalación.</translation>
    </message>
    <message>
        <source>Welcome back to Lumivo Drive Setup</source>
        <translation>Le damos de nuevo la bienvenida a la instalación de Lumivo Drive</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>Directa</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>This folder is already used by another sync task. Select another folder.</source>
        <translation>Otra tarea de sincronización ya usa esta carpeta. Seleccione otra carpeta.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>No queda espacio</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>Cargando las carpetas compartidas…</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Desvinculando…</translation>
    </message>
    <message>
        <source>Files being synced</source>
        <translation>Archivos que se están sincronizando</translation>
    </message>
    <message>
        <source>You can change all settings later.</source>
        <translation>Podrá cambiar todos los ajustes más tarde.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Mostrar el estado de la sincronización</translation>
    </message>
    <message>
        <source>The folder on your server is not mounted. Mount it there and try again.</source>
        <translation>La carpeta de su servidor no está montada. Móntela allí e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Mark skipped files with an icon</source>
        <translation>Marcar los archivos omitidos con un icono</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>Comprobando el tipo de conexión…</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Both versions of files with different contents are kept.</source>
        <translation>Se conservan ambas versiones de los archivos con contenido distinto.</translation>
    </message>
    <message>
        <source>This folder is already synced. Do you want to add it again?</source>
        <translation>Esta carpeta ya se sincroniza. ¿Desea añadirla de nuevo?</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Ajustes avanzados</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Check your permissions on the server.</source>
        <translation>No se puede mostrar la lista de versiones de este archivo. Compruebe sus permisos en el servidor.</translation>
    </message>
    <message>
        <source>The server&apos;s response could not be understood. Update Lumivo Drive and try again.</source>
        <translation>No se ha podido interpretar la respuesta del servidor. Actualice Lumivo Drive e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of Lumivo Drive?</source>
        <translation>¿Seguro que desea cancelar la instalación de Lumivo Drive?</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>A different server was found at this address</source>
        <translation>Se ha encontrado otro servidor en esta dirección</translation>
    </message>
    <message>
        <source>July</source>
        <translation>julio</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Algunos archivos que se deben actualizar están en uso.</translation>
    </message>
    <message>
        <source>Lumivo Drive is ready.</source>
        <translation>Lumivo Drive está listo.</translation>
    </message>
    <message>
        <source>The sync database is damaged. Unlink this computer and link it again.</source>
        <translation>La base de datos de sincronización está dañada. Desvincule este equipo y vuelva a vincularlo.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>A newer version of Lumivo Drive is already installed on this computer. Remove it before you install this version.</source>
        <translation>Ya hay una versión más reciente de Lumivo Drive instalada en este equipo. Quítela antes de instalar esta versión.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Le damos la bienvenida</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>Sincronizar esta carpeta compartida</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>Abrir la ventana principal</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>Paso actual:</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Restringir el acceso</translation>
    </message>
    <message>
        <source>Setup will install Lumivo Drive on this computer. Click Next to continue or Cancel to exit Setup.</source>
        <translation>El programa de instalación instalará Lumivo Drive en este equipo. Haga clic en «Siguiente» para continuar o en «Cancelar» para salir de la instalación.</translation>
    </message>
    <message>
        <source>Enter the address of your server or its ZephLink ID, your username and your password.</source>
        <translation>Introduzca la dirección de su servidor o su ID de ZephLink, su nombre de usuario y su contraseña.</translation>
    </message>
    <message>
        <source>Could not create the folder &quot;%1&quot;. Check its path and your permissions.</source>
        <translation>No se ha podido crear la carpeta «%1». Compruebe la ruta y sus permisos.</translation>
    </message>
    <message>
        <source>Setup ended because of an error.\nYour computer has not been changed.</source>
        <translation>La instalación ha finalizado debido a un error.\nNo se ha modificado el equipo.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files to continue syncing.</source>
        <translation>Su cuota en el servidor se ha agotado. Elimine algunos archivos para continuar la sincronización.</translation>
    </message>
    <message>
        <source>Folder filter</source>
        <translation>Filtro de carpetas</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Check it in the connection settings.</source>
        <translation>No se ha podido verificar el certificado de su servidor. Compruébelo en los ajustes de conexión.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Elegir otra carpeta</translation>
    </message>
    <message>
        <source>You can open Lumivo Drive at any time from the tray.</source>
        <translation>Puede abrir Lumivo Drive en cualquier momento desde la bandeja del sistema.</translation>
    </message>
    <message>
        <source>The file was changed in two places at the same time. Both versions have been kept. Delete the one that you do not need.</source>
        <translation>El archivo se ha modificado en dos lugares al mismo tiempo. Se han conservado ambas versiones. Elimine la que no necesite.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it in the connection settings.</source>
        <translation>El certificado de su servidor ha cambiado. Compruébelo en los ajustes de conexión.</translation>
    </message>
    <message>
        <source>Encrypt the connection (SSL)</source>
        <translation>Cifrar la conexión (SSL)</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nombre de la carpeta</translation>
    </message>
    <message>
        <source>Create a link to a file and send it to anyone, with a password and an end date if you like.</source>
        <translation>Cree un enlace a un archivo y envíelo a quien quiera, con una contraseña y una fecha de fin si lo desea.</translation>
    </message>
    <message>
        <source>Enter the verification code for your account.</source>
        <translation>Introduzca el código de verificación de su cuenta.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>You have chosen to remove Lumivo Drive from this computer.</source>
        <translation>Ha elegido quitar Lumivo Drive de este equipo.</translation>
    </message>
    <message>
        <source>Changes on a network drive cannot be detected. Select a folder on a local disk.</source>
        <translation>No se pueden detectar los cambios en una unidad de red. Seleccione una carpeta en un disco local.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Enter another name.</source>
        <translation>Ya existe una carpeta con este nombre. Introduzca otro nombre.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>viernes</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Ajustes de proxy</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Abrir archivo</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Editar conexión</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Al día</translation>
    </message>
    <message>
        <source>The connection to your server was lost. It will be restored automatically.</source>
        <translation>Se ha perdido la conexión con su servidor. Se restablecerá automáticamente.</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Sin permiso</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Descargado</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>Elementos: %1</translation>
    </message>
    <message>
        <source>Do you want to stop syncing &quot;%1&quot; with &quot;%2&quot;?\nNo files will be deleted.</source>
        <translation>¿Desea dejar de sincronizar «%1» con «%2»?\nNo se eliminará ningún archivo.</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Cambiar la carpeta local</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>La conexión funciona.</translation>
    </message>
    <message>
        <source>Setup complete</source>
        <translation>Configuración completada</translation>
    </message>
    <message>
        <source>Icons in the tray</source>
        <translation>Iconos de la bandeja del sistema</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mayo</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Modo de sincronización</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>El mes pasado</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>Examinar versiones anteriores</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>Hace %1 h</translation>
    </message>
    <message>
        <source>Files and folders that match these rules are not synced.</source>
        <translation>Los archivos y carpetas que cumplen estas reglas no se sincronizan.</translation>
    </message>
    <message>
        <source>Removes Lumivo Drive from this computer. Your synced files are kept.</source>
        <translation>Quita Lumivo Drive de este equipo. Los archivos sincronizados se conservan.</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Gestionar conexiones</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Select a folder on another disk.</source>
        <translation>No hay suficiente espacio en este disco. Seleccione una carpeta en otro disco.</translation>
    </message>
    <message>
        <source>File names to skip</source>
        <translation>Nombres de archivo que se omitirán</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>jueves</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Reanudar la sincronización</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Archivos modificados recientemente</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>IP address, domain name or ZephLink ID</source>
        <translation>Dirección IP, nombre de dominio o ID de ZephLink</translation>
    </message>
    <message>
        <source>Show Lumivo Drive in the context menu</source>
        <translation>Mostrar Lumivo Drive en el menú contextual</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old. Update it on this computer.</source>
        <translation>Esta versión de Lumivo Drive es demasiado antigua. Actualícela en este equipo.</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Select another folder.</source>
        <translation>Esta carpeta no se puede sincronizar. Seleccione otra carpeta.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>La descarga se ha cancelado.</translation>
    </message>
    <message>
        <source>Limit the number of downloads</source>
        <translation>Limitar el número de descargas</translation>
    </message>
    <message>
        <source>Show sync status icons on files</source>
        <translation>Mostrar iconos del estado de sincronización en los archivos</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>Este campo es obligatorio.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Mostrar el tutorial</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Vincular otro servidor</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>No acepto los términos del contrato de licencia</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versiones incompatibles</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Primera página</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
    <message>
        <source>Access denied</source>
        <translation>Acceso denegado</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <translation>Introduzca el código de verificación de 6 dígitos</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Entendido</translation>
    </message>
    <message>
        <source>The disk with the local sync folder is not connected. Connect it to continue syncing.</source>
        <translation>El disco que contiene la carpeta de sincronización local no está conectado. Conéctelo para continuar la sincronización.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>No volver a mostrar este mensaje</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Empezar ahora</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>Buscar en la red local</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Configurar el proxy manualmente</translation>
    </message>
    <message>
        <source>You can open the files in this folder but not change them.</source>
        <translation>Puede abrir los archivos de esta carpeta, pero no modificarlos.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>Demasiados intentos fallidos. Espere unos minutos e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>September</source>
        <translation>septiembre</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on your server.</source>
        <translation>La carpeta no está vacía. Sus archivos se combinarán con los de su servidor.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>La semana pasada</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>La descarga se ha completado.</translation>
    </message>
    <message>
        <source>You can bring back a version that you overwrote or deleted.</source>
        <translation>Puede recuperar una versión que haya sobrescrito o eliminado.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>domingo</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>Carpeta de sincronización</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>Actualización necesaria</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Uso compartido</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>martes</translation>
    </message>
    <message>
        <source>Start Lumivo Drive when you sign in</source>
        <translation>Iniciar Lumivo Drive al iniciar sesión</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Gestionar carpetas compartidas</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>Hace %1 min</translation>
    </message>
    <message>
        <source>This shared folder will no longer be synced. The files that are already on this computer will be kept.</source>
        <translation>Esta carpeta compartida dejará de sincronizarse. Los archivos que ya están en este equipo se conservarán.</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>Extensiones de archivo que se omitirán</translation>
    </message>
    <message>
        <source>Relay</source>
        <translation>Retransmisión</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Inicio de sesión fallido</translation>
    </message>
    <message>
        <source>Lumivo Drive has no features that can be chosen separately.</source>
        <translation>Lumivo Drive no tiene funciones que se puedan elegir por separado.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator. Lumivo Drive will be installed only for you.\nDo you want to continue?</source>
        <translation>No ha iniciado sesión como administrador. Lumivo Drive se instalará solo para usted.\n¿Desea continuar?</translation>
    </message>
    <message>
        <source>Links cannot be created because the file service is turned off. Ask your administrator to turn it on.</source>
        <translation>No se pueden crear enlaces porque el servicio de archivos está desactivado. Pida a su administrador que lo active.</translation>
    </message>
    <message>
        <source>Close the applications and try to restart them afterward</source>
        <translation>Cerrar las aplicaciones e intentar iniciarlas de nuevo después</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Contrato de licencia</translation>
    </message>
    <message>
        <source>The folder could not be checked because of a system error. Try again later.</source>
        <translation>No se ha podido comprobar la carpeta debido a un error del sistema. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is already installed. Do you want to install it again?</source>
        <translation>Esta versión de Lumivo Drive ya está instalada. ¿Desea instalarla de nuevo?</translation>
    </message>
    <message>
        <source>Set a start date</source>
        <translation>Establecer una fecha de inicio</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gestionar</translation>
    </message>
    <message>
        <source>This shared folder is not mounted on your server. Mount it there and try again.</source>
        <translation>Esta carpeta compartida no está montada en su servidor. Móntela allí e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Red local</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Todos los eventos</translation>
    </message>
    <message>
        <source>Unlink this connection</source>
        <translation>Desvincular esta conexión</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>La conexión es inestable</translation>
    </message>
    <message>
        <source>This computer and your server now keep these folders in sync.\nYou can add more sync tasks at any time.</source>
        <translation>Este equipo y su servidor mantienen ahora sincronizadas estas carpetas.\nPuede añadir más tareas de sincronización en cualquier momento.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>No sincronizar esta carpeta</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed.\nContinue only if you know why.</source>
        <translation>El certificado de su servidor ha cambiado.\nContinúe solo si sabe por qué.</translation>
    </message>
    <message>
        <source>Maximum file size (MB)</source>
        <translation>Tamaño máximo de archivo (MB)</translation>
    </message>
    <message>
        <source>Keep the version that was changed last</source>
        <translation>Conservar la versión modificada más recientemente</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Buscar servidores en la red local</translation>
    </message>
    <message>
        <source>Your account is not allowed to sync this folder. Ask your administrator for permission.</source>
        <translation>Su cuenta no tiene permiso para sincronizar esta carpeta. Solicite permiso a su administrador.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Ahora mismo</translation>
    </message>
    <message>
        <source>Setup is ready to repair Lumivo Drive.</source>
        <translation>El programa de instalación está listo para reparar Lumivo Drive.</translation>
    </message>
    <message>
        <source>You can only read this folder. Changes on this computer will not be uploaded.</source>
        <translation>Solo puede leer esta carpeta. Los cambios realizados en este equipo no se subirán.</translation>
    </message>
    <message>
        <source>You do not have access to this folder. Ask your administrator for permission.</source>
        <translation>No tiene acceso a esta carpeta. Solicite permiso a su administrador.</translation>
    </message>
    <message>
        <source>No entries found</source>
        <translation>No se han encontrado entradas</translation>
    </message>
    <message>
        <source>Your files are being synced. You can keep working in the meantime.</source>
        <translation>Sus archivos se están sincronizando. Mientras tanto, puede seguir trabajando.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.\nContinue only if you trust this network.</source>
        <translation>No se ha podido verificar el certificado de su servidor.\nContinúe solo si confía en esta red.</translation>
    </message>
    <message>
        <source>Files left to sync: %1</source>
        <translation>Archivos pendientes de sincronizar: %1</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive</source>
        <translation>Le damos la bienvenida a Lumivo Drive</translation>
    </message>
    <message>
        <source>Set an end date</source>
        <translation>Establecer una fecha de fin</translation>
    </message>
    <message>
        <source>The sync task could not be removed. Try again later.</source>
        <translation>No se ha podido quitar la tarea de sincronización. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>Click the icon to see which files are being synced.</source>
        <translation>Haga clic en el icono para ver qué archivos se están sincronizando.</translation>
    </message>
    <message>
        <source>Your sync folder</source>
        <translation>Su carpeta de sincronización</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Ask your administrator to install a valid one.</source>
        <translation>No se ha podido verificar el certificado de su servidor. Pida a su administrador que instale uno válido.</translation>
    </message>
    <message>
        <source>The server has been replaced. Link this computer again.</source>
        <translation>Se ha sustituido el servidor. Vincule este equipo de nuevo.</translation>
    </message>
    <message>
        <source>Follow these steps to link this computer to your server.</source>
        <translation>Siga estos pasos para vincular este equipo a su servidor.</translation>
    </message>
    <message>
        <source>Proxy server</source>
        <translation>Servidor proxy</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Archivos actualizados</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Continuar de todos modos</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Finalizar</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Icons on local files</source>
        <translation>Iconos de los archivos locales</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>No hay acciones disponibles</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nombre del archivo</translation>
    </message>
    <message>
        <source>Syncing stopped</source>
        <translation>Sincronización detenida</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Carpeta de sincronización local</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Your server is still indexing &quot;%1&quot;. You can sync it when indexing is complete.</source>
        <translation>Su servidor aún está indexando «%1». Podrá sincronizar la carpeta cuando finalice la indexación.</translation>
    </message>
    <message>
        <source>When a file has been changed in two places</source>
        <translation>Cuando un archivo se haya modificado en dos lugares</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not empty.\nDo you want to use it anyway?</source>
        <translation>La carpeta «%1» no está vacía.\n¿Desea usarla de todos modos?</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Cambiar carpeta</translation>
    </message>
    <message>
        <source>Sync your home folder using the recommended settings.</source>
        <translation>Sincronice su carpeta personal con los ajustes recomendados.</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>Cargando las carpetas…</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>miércoles</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>Cifrado SSL</translation>
    </message>
    <message>
        <source>Ready to install Lumivo Drive</source>
        <translation>Listo para instalar Lumivo Drive</translation>
    </message>
    <message>
        <source>Run Setup again whenever you want to install Lumivo Drive.</source>
        <translation>Vuelva a ejecutar el programa de instalación cuando desee instalar Lumivo Drive.</translation>
    </message>
    <message>
        <source>Your home folder on the server now syncs with this computer.</source>
        <translation>Su carpeta personal del servidor ya se sincroniza con este equipo.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Vista general del servidor</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Pausar la sincronización</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>sábado</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete some files to continue syncing.</source>
        <translation>La cuota de esta carpeta compartida se ha agotado. Elimine algunos archivos para continuar la sincronización.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Your new sync task</source>
        <translation>Su nueva tarea de sincronización</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Historial de descargas</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Descargando…</translation>
    </message>
    <message>
        <source>The new language takes effect the next time Lumivo Drive starts.</source>
        <translation>El nuevo idioma se aplicará la próxima vez que se inicie Lumivo Drive.</translation>
    </message>
    <message>
        <source>Installing Lumivo Drive</source>
        <translation>Instalando Lumivo Drive</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostrar notificaciones en el escritorio</translation>
    </message>
    <message>
        <source>Quick setup suits most users. You can change everything later.</source>
        <translation>La configuración rápida es adecuada para la mayoría de los usuarios. Podrá cambiar cualquier opción más tarde.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full.</source>
        <translation>El disco de su servidor está lleno.</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>Retroceder en el tiempo</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Select the local folder that you want to sync with your server.</source>
        <translation>Sélectionnez le dossier local à synchroniser avec votre serveur.</translation>
    </message>
    <message>
        <source>Could not reach the ZephLink service. Check your network connection and try again.</source>
        <translation>Impossible d’accéder au service ZephLink. Vérifiez votre connexion réseau et réessayez.</translation>
    </message>
    <message>
        <source>Filter rules</source>
        <translation>Règles de filtrage</translation>
    </message>
    <message>
        <source>Mount point not allowed</source>
        <translation>Point de montage non autorisé</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Plage de dates</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on your server. Select another folder.</source>
        <translation>Ce dossier partagé n’existe plus sur votre serveur. Sélectionnez un autre dossier.</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>Saisissez votre nom d’utilisateur.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>Les fichiers portant ces noms ne seront pas synchronisés.</translation>
    </message>
    <message>
        <source>Could not connect to your server. Check your network connection and try again.</source>
        <translation>Impossible de se connecter à votre serveur. Vérifiez votre connexion réseau et réessayez.</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Réparer</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Téléchargement seul</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Sens de synchronisation</translation>
    </message>
    <message>
        <source>Your first sync task on this server</source>
        <translation>Votre première tâche de synchronisation sur ce serveur</translation>
    </message>
    <message>
        <source>Restores missing or damaged files, shortcuts and registry entries.</source>
        <translation>Restaure les fichiers, les raccourcis et les entrées du Registre manquants ou endommagés.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>Cliquez ici pour mettre à jour</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Chemin du dossier</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Dossiers partagés</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Non merci</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Avertissement relatif au certificat</translation>
    </message>
    <message>
        <source>Change connection settings</source>
        <translation>Modifier les paramètres de connexion</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Test de la connexion…</translation>
    </message>
    <message>
        <source>Lumivo Drive Setup</source>
        <translation>Installation de Lumivo Drive</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>Setup is ready to install Lumivo Drive on this computer.</source>
        <translation>Le programme d’installation est prêt à installer Lumivo Drive sur cet ordinateur.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nouveau dossier partagé</translation>
    </message>
    <message>
        <source>No usable folder was found. Ask your administrator for access to a shared folder.</source>
        <translation>Aucun dossier utilisable n’a été trouvé. Demandez à votre administrateur l’accès à un dossier partagé.</translation>
    </message>
    <message>
        <source>Could not enable syncing for this shared folder. Try again later.</source>
        <translation>Impossible d’activer la synchronisation de ce dossier partagé. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Au</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Synchroniser à nouveau ce dossier</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>%1 d ago</source>
        <translation>Il y a %1 j</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is a mount point and cannot be synced. Select another folder.</source>
        <translation>Le dossier «&#x202f;%1&#x202f;» est un point de montage et ne peut pas être synchronisé. Sélectionnez un autre dossier.</translation>
    </message>
    <message>
        <source>This computer is already linked to &quot;%1&quot;. Edit the existing connection instead.</source>
        <translation>Cet ordinateur est déjà associé à «&#x202f;%1&#x202f;». Modifiez plutôt la connexion existante.</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Mise à jour disponible</translation>
    </message>
    <message>
        <source>Enter a port number from 1 to 65535.</source>
        <translation>Saisissez un numéro de port compris entre 1 et 65535.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>Ouvrir le dossier de synchronisation</translation>
    </message>
    <message>
        <source>Lumivo Drive has been installed</source>
        <translation>Lumivo Drive a été installé</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Dissocier</translation>
    </message>
    <message>
        <source>This folder overlaps with the folder of another sync task. Select another folder.</source>
        <translation>Ce dossier chevauche celui d’une autre tâche de synchronisation. Sélectionnez un autre dossier.</translation>
    </message>
    <message>
        <source>The folders on your server could not be listed. Check your network connection and try again.</source>
        <translation>Impossible d’afficher la liste des dossiers de votre serveur. Vérifiez votre connexion réseau et réessayez.</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Intervention requise</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it before you continue.</source>
        <translation>Le certificat de votre serveur a changé. Vérifiez-le avant de continuer.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Dernière page</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>En cours d’exécution</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juin</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>La mise à jour a échoué. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.</source>
        <translation>Impossible de vérifier le certificat de votre serveur.</translation>
    </message>
    <message>
        <source>Please wait. This may take several minutes.</source>
        <translation>Veuillez patienter. Cette opération peut prendre plusieurs minutes.</translation>
    </message>
    <message>
        <source>Choose which features are installed</source>
        <translation>Choisir les fonctionnalités à installer</translation>
    </message>
    <message>
        <source>Your files, wherever you work</source>
        <translation>Vos fichiers, partout où vous travaillez</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Synchroniser à nouveau ces dossiers</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full. Free up some space to continue syncing.</source>
        <translation>Le disque de cet ordinateur est plein. Libérez de l’espace pour poursuivre la synchronisation.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Utiliser une icône en noir et blanc dans la zone de notification</translation>
    </message>
    <message>
        <source>Some fields are not filled in correctly. Correct them and try again.</source>
        <translation>Certains champs ne sont pas remplis correctement. Corrigez-les et réessayez.</translation>
    </message>
    <message>
        <source>Setup was interrupted. Your computer has not been changed.</source>
        <translation>L’installation a été interrompue. Votre ordinateur n’a pas été modifié.</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Dossier introuvable</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Choisir les dossiers à synchroniser</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Choose a folder on your server and the local folder to sync it with.</source>
        <translation>Choisissez un dossier sur votre serveur et le dossier local avec lequel le synchroniser.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a dot</source>
        <translation>Ignorer les fichiers et les dossiers dont le nom commence par un point</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Plage personnalisée</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Check both and try again.</source>
        <translation>Le nom d’utilisateur ou le mot de passe est incorrect. Vérifiez-les et réessayez.</translation>
    </message>
    <message>
        <source>This address belongs to another server. Check the address and try again.</source>
        <translation>Cette adresse correspond à un autre serveur. Vérifiez l’adresse et réessayez.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Type de fichier</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>Choisir le mode de configuration</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>lundi</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files or ask your administrator for more space.</source>
        <translation>Votre quota sur le serveur est épuisé. Supprimez des fichiers ou demandez plus d’espace à votre administrateur.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>août</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Démarrage…</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached. Stop syncing one of them first.</source>
        <translation>Le nombre maximal de dossiers partagés est atteint. Arrêtez d’abord la synchronisation de l’un d’eux.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Utiliser les paramètres proxy du système</translation>
    </message>
    <message>
        <source>Keep both versions and rename the local one</source>
        <translation>Conserver les deux versions et renommer la version locale</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has stopped syncing. Open Lumivo Drive for details.</source>
        <translation>La synchronisation de «&#x202f;%1&#x202f;» s’est arrêtée. Ouvrez Lumivo Drive pour en savoir plus.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>ZephLink ID</source>
        <translation>ID ZephLink</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions for this folder. Choose another direction.</source>
        <translation>Le sens de synchronisation ne correspond pas à vos autorisations sur ce dossier. Choisissez un autre sens.</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Plus de détails</translation>
    </message>
    <message>
        <source>October</source>
        <translation>octobre</translation>
    </message>
    <message>
        <source>February</source>
        <translation>février</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old. Update it on your server.</source>
        <translation>Cette version de Lumivo Drive Server est trop ancienne. Mettez-la à jour sur votre serveur.</translation>
    </message>
    <message>
        <source>Sync rules</source>
        <translation>Règles de synchronisation</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. Check your permissions on the server.</source>
        <translation>Impossible de télécharger ce fichier. Vérifiez vos autorisations sur le serveur.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connexion…</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Ne pas utiliser de proxy</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Dossier partagé</translation>
    </message>
    <message>
        <source>Resume this connection</source>
        <translation>Reprendre cette connexion</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Obtenir un lien</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>The icon in the tray shows at a glance whether your files are in sync.</source>
        <translation>L’icône de la zone de notification permet de voir d’un coup d’œil si vos fichiers sont synchronisés.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Du</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Associer à nouveau</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Lecture seule</translation>
    </message>
    <message>
        <source>April</source>
        <translation>avril</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Paramètres réseau</translation>
    </message>
    <message>
        <source>Setup is applying your choices.</source>
        <translation>Le programme d’installation applique vos choix.</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They will remain on your server.</source>
        <translation>Les dossiers que vous décochez ici seront supprimés de cet ordinateur. Ils resteront sur votre serveur.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full. Free up some space on it to continue syncing.</source>
        <translation>Le disque de votre serveur est plein. Libérez-y de l’espace pour poursuivre la synchronisation.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>The download failed. Check your network connection and try again.</source>
        <translation>Le téléchargement a échoué. Vérifiez votre connexion réseau et réessayez.</translation>
    </message>
    <message>
        <source>Lumivo Drive</source>
        <translation>Lumivo Drive</translation>
    </message>
    <message>
        <source>Save and copy link</source>
        <translation>Enregistrer et copier le lien</translation>
    </message>
    <message>
        <source>Enter your server&apos;s address and your account details.</source>
        <translation>Saisissez l’adresse de votre serveur et les informations de votre compte.</translation>
    </message>
    <message>
        <source>Let&apos;s get started</source>
        <translation>Pour commencer</translation>
    </message>
    <message>
        <source>There are no changes to save.</source>
        <translation>Aucune modification à enregistrer.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 pages précédentes</translation>
    </message>
    <message>
        <source>To install Lumivo Drive later, run Setup again.</source>
        <translation>Pour installer Lumivo Drive plus tard, relancez le programme d’installation.</translation>
    </message>
    <message>
        <source>Right-click a file in a synced folder to share it or to see its earlier versions.</source>
        <translation>Cliquez avec le bouton droit sur un fichier d’un dossier synchronisé pour le partager ou afficher ses versions antérieures.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Informations sur l’état</translation>
    </message>
    <message>
        <source>Lumivo Drive could not be started. Restart the computer and try again.</source>
        <translation>Impossible de démarrer Lumivo Drive. Redémarrez l’ordinateur et réessayez.</translation>
    </message>
    <message>
        <source>Keep the version on the server</source>
        <translation>Conserver la version du serveur</translation>
    </message>
    <message>
        <source>January</source>
        <translation>janvier</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old for your server. Update it to version %1 or later.</source>
        <translation>Cette version de Lumivo Drive est trop ancienne pour votre serveur. Mettez-la à jour vers la version %1 ou une version ultérieure.</translation>
    </message>
    <message>
        <source>Change, repair or remove Lumivo Drive</source>
        <translation>Modifier, réparer ou supprimer Lumivo Drive</translation>
    </message>
    <message>
        <source>Connect through ZephLink</source>
        <translation>Se connecter via ZephLink</translation>
    </message>
    <message>
        <source>Click Install to begin. Click Back to review or change your choices. Click Cancel to exit Setup.</source>
        <translation>Cliquez sur «&#x202f;Installer&#x202f;» pour commencer. Cliquez sur «&#x202f;Précédent&#x202f;» pour revoir ou modifier vos choix. Cliquez sur «&#x202f;Annuler&#x202f;» pour quitter l’installation.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>Une erreur s’est produite. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>J’accepte les termes du contrat de licence</translation>
    </message>
    <message>
        <source>Selective sync is not available yet. Update Lumivo Drive Server on your server to use it.</source>
        <translation>La synchronisation sélective n’est pas encore disponible. Pour l’utiliser, mettez à jour Lumivo Drive Server sur votre serveur.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renommé</translation>
    </message>
    <message>
        <source>This folder is read-only</source>
        <translation>Ce dossier est en lecture seule</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Ready to remove Lumivo Drive</source>
        <translation>Prêt à supprimer Lumivo Drive</translation>
    </message>
    <message>
        <source>Choose what to sync with this computer and where to keep it.</source>
        <translation>Choisissez les éléments à synchroniser avec cet ordinateur et leur emplacement.</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Envoyé</translation>
    </message>
    <message>
        <source>Your access was revoked, and the synced files were removed from this computer. Contact your administrator.</source>
        <translation>Votre accès a été révoqué et les fichiers synchronisés ont été supprimés de cet ordinateur. Contactez votre administrateur.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Envoi…</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Application des paramètres…</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Veuillez lire attentivement le contrat de licence suivant.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Mode de fusion</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Ne pas synchroniser ces dossiers</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Click Repair to begin. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>Cliquez sur «&#x202f;Réparer&#x202f;» pour commencer. Cliquez sur «&#x202f;Précédent&#x202f;» pour revoir votre choix. Cliquez sur «&#x202f;Annuler&#x202f;» pour quitter l’installation.</translation>
    </message>
    <message>
        <source>You cannot write to this folder. Change its permissions or select another folder.</source>
        <translation>Vous ne pouvez pas écrire dans ce dossier. Modifiez ses autorisations ou sélectionnez un autre dossier.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Synchronisation sélective</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nom d’utilisateur</translation>
    </message>
    <message>
        <source>December</source>
        <translation>décembre</translation>
    </message>
    <message>
        <source>Enter a file size from %1 to %2 MB.</source>
        <translation>Saisissez une taille de fichier comprise entre %1 et %2 Mo.</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files that are already on this computer will be kept.</source>
        <translation>Arrêter la synchronisation de «&#x202f;%1&#x202f;»&#x202f;? Les fichiers déjà présents sur cet ordinateur seront conservés.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Configuration rapide</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Configuration avancée</translation>
    </message>
    <message>
        <source>November</source>
        <translation>novembre</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Sélectionner un dossier</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Adresse du serveur</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Votre quota sur le serveur est épuisé.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Lors d’un double-clic sur l’icône de la zone de notification</translation>
    </message>
    <message>
        <source>Lumivo Drive is initializing...</source>
        <translation>Initialisation de Lumivo Drive…</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Vérification des fichiers…</translation>
    </message>
    <message>
        <source>This computer is now linked to &quot;%1&quot;. Syncing starts right away.</source>
        <translation>Cet ordinateur est maintenant associé à «&#x202f;%1&#x202f;». La synchronisation commence immédiatement.</translation>
    </message>
    <message>
        <source>Everything in sync</source>
        <translation>Tout est synchronisé</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Mise à jour…</translation>
    </message>
    <message>
        <source>Custom period</source>
        <translation>Durée personnalisée</translation>
    </message>
    <message>
        <source>Check the sync status</source>
        <translation>Consulter l’état de la synchronisation</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Chargement…</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactif</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update:</source>
        <translation>Les applications suivantes utilisent des fichiers que le programme d’installation doit mettre à jour&#x202f;:</translation>
    </message>
    <message>
        <source>Open Lumivo Drive</source>
        <translation>Ouvrir Lumivo Drive</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction and the sync rules yourself.</source>
        <translation>Choisissez vous-même les dossiers, le sens et les règles de synchronisation.</translation>
    </message>
    <message>
        <source>Repair the installed files</source>
        <translation>Réparer les fichiers installés</translation>
    </message>
    <message>
        <source>Enter a number of versions greater than zero.</source>
        <translation>Saisissez un nombre de versions supérieur à zéro.</translation>
    </message>
    <message>
        <source>This username does not exist on your server. Check it and try again.</source>
        <translation>Ce nom d’utilisateur n’existe pas sur votre serveur. Vérifiez-le et réessayez.</translation>
    </message>
    <message>
        <source>Update Lumivo Drive</source>
        <translation>Mettre à jour Lumivo Drive</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>En savoir plus</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Date de création</translation>
    </message>
    <message>
        <source>Keep the files on this computer and on your server in sync.</source>
        <translation>Gardez synchronisés les fichiers de cet ordinateur et de votre serveur.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>This folder is already synced by another cloud sync app. Select another folder to avoid conflicts.</source>
        <translation>Ce dossier est déjà synchronisé par une autre application de synchronisation dans le cloud. Sélectionnez un autre dossier pour éviter les conflits.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Nom de l’ordinateur</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>The proxy requires a username and a password</source>
        <translation>Le proxy nécessite un nom d’utilisateur et un mot de passe</translation>
    </message>
    <message>
        <source>The server did not accept the request. Check your entries and try again.</source>
        <translation>Le serveur n’a pas accepté la requête. Vérifiez votre saisie et réessayez.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old for Lumivo Drive on this computer. Update it on your server to version %1 or later.</source>
        <translation>Cette version de Lumivo Drive Server est trop ancienne pour la version de Lumivo Drive installée sur cet ordinateur. Mettez à jour Lumivo Drive Server vers la version %1 ou une version ultérieure.</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Envoyer vers</translation>
    </message>
    <message>
        <source>The ZephLink service reported an error. Try again later.</source>
        <translation>Le service ZephLink a signalé une erreur. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>Close these applications and click Retry, or click Ignore and restart the computer later.</source>
        <translation>Fermez ces applications et cliquez sur «&#x202f;Réessayer&#x202f;», ou cliquez sur «&#x202f;Ignorer&#x202f;» et redémarrez l’ordinateur plus tard.</translation>
    </message>
    <message>
        <source>Lets you change which features are installed.</source>
        <translation>Permet de modifier la sélection des fonctionnalités installées.</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from &quot;%1&quot;?\nThe files that are already on this computer will be kept.</source>
        <translation>Voulez-vous dissocier cet ordinateur de «&#x202f;%1&#x202f;»&#x202f;?\nLes fichiers déjà présents sur cet ordinateur seront conservés.</translation>
    </message>
    <message>
        <source>This folder is used by a backup task. Select another folder.</source>
        <translation>Ce dossier est utilisé par une tâche de sauvegarde. Sélectionnez un autre dossier.</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full.</source>
        <translation>Le disque de cet ordinateur est plein.</translation>
    </message>
    <message>
        <source>This folder is not empty</source>
        <translation>Ce dossier n’est pas vide</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Ouvrir l’emplacement du fichier</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Type de connexion</translation>
    </message>
    <message>
        <source>This ZephLink ID does not exist. Check it and try again.</source>
        <translation>Cet ID ZephLink n’existe pas. Vérifiez-le et réessayez.</translation>
    </message>
    <message>
        <source>Do not sync these files</source>
        <translation>Ne pas synchroniser ces fichiers</translation>
    </message>
    <message>
        <source>Remove Lumivo Drive from this computer</source>
        <translation>Supprimer Lumivo Drive de cet ordinateur</translation>
    </message>
    <message>
        <source>Your account requires two-step verification. Set it up on your server, then sign in again.</source>
        <translation>Votre compte nécessite la vérification en deux étapes. Configurez-la sur votre serveur, puis ouvrez une nouvelle session.</translation>
    </message>
    <message>
        <source>The file service is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>Le service de fichiers est désactivé sur votre serveur. Demandez à votre administrateur de l’activer.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Supprimé</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Ajouter une tâche de synchronisation</translation>
    </message>
    <message>
        <source>Share with others</source>
        <translation>Partager avec d’autres personnes</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>Fichier verrouillé</translation>
    </message>
    <message>
        <source>Do not close the applications (you will have to restart the computer later)</source>
        <translation>Ne pas fermer les applications (vous devrez redémarrer l’ordinateur plus tard)</translation>
    </message>
    <message>
        <source>About Lumivo Drive</source>
        <translation>À propos de Lumivo Drive</translation>
    </message>
    <message>
        <source>File service off</source>
        <translation>Service de fichiers désactivé</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 pages suivantes</translation>
    </message>
    <message>
        <source>The local sync folder was moved or deleted. Put it back or choose a new one.</source>
        <translation>Le dossier de synchronisation local a été déplacé ou supprimé. Remettez-le en place ou choisissez-en un autre.</translation>
    </message>
    <message>
        <source>This file cannot be shared. Check your permissions on the server.</source>
        <translation>Impossible de partager ce fichier. Vérifiez vos autorisations sur le serveur.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Click Finish to exit Setup.</source>
        <translation>Cliquez sur «&#x202f;Terminer&#x202f;» pour quitter l’installation.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Expire après</translation>
    </message>
    <message>
        <source>Pause this connection</source>
        <translation>Mettre cette connexion en pause</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>a été partagé avec vous.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Fichiers en cours d’utilisation</translation>
    </message>
    <message>
        <source>Setup ended prematurely</source>
        <translation>L’installation s’est terminée prématurément</translation>
    </message>
    <message>
        <source>File sharing through ZephLink is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>Le partage de fichiers via ZephLink est désactivé sur votre serveur. Demandez à votre administrateur de l’activer.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Lien</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>Synchronisation unidirectionnelle (téléchargement seul)</translation>
    </message>
    <message>
        <source>The files in both folders will be merged.</source>
        <translation>Les fichiers des deux dossiers seront fusionnés.</translation>
    </message>
    <message>
        <source>This folder on your server is already synced with this computer.\nA second sync task for it would take up twice the disk space.</source>
        <translation>Ce dossier de votre serveur est déjà synchronisé avec cet ordinateur.\nUne deuxième tâche de synchronisation pour ce dossier doublerait l’espace disque occupé.</translation>
    </message>
    <message>
        <source>Setup was interrupted</source>
        <translation>L’installation a été interrompue</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Enter the current code and try again.</source>
        <translation>Le code de vérification est incorrect. Saisissez le code actuel et réessayez.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Synchronisation bidirectionnelle</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Your server is blocking this computer&apos;s address. Ask your administrator to allow it.</source>
        <translation>Votre serveur bloque l’adresse de cet ordinateur. Demandez à votre administrateur de l’autoriser.</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>Vérification du nom d’utilisateur et du mot de passe…</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive Setup</source>
        <translation>Bienvenue dans le programme d’installation de Lumivo Drive</translation>
    </message>
    <message>
        <source>Enter no more than %1 characters.</source>
        <translation>Saisissez %1 caractères au maximum.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Fusionner</translation>
    </message>
    <message>
        <source>Sync all file attributes and permissions</source>
        <translation>Synchroniser tous les attributs et autorisations des fichiers</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available on &quot;%2&quot;. Click here to sync it.</source>
        <translation>Le dossier partagé «&#x202f;%1&#x202f;» est disponible sur «&#x202f;%2&#x202f;». Cliquez ici pour le synchroniser.</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Mot-clé</translation>
    </message>
    <message>
        <source>Create an empty folder for Lumivo Drive</source>
        <translation>Créer un dossier vide pour Lumivo Drive</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filtre de fichiers</translation>
    </message>
    <message>
        <source>Everything that you put into your sync folder appears on your server and on your other computers.</source>
        <translation>Tout ce que vous placez dans votre dossier de synchronisation apparaît sur votre serveur et sur vos autres ordinateurs.</translation>
    </message>
    <message>
        <source>Setup can change, repair or remove Lumivo Drive. Click Next to continue.</source>
        <translation>Le programme d’installation peut modifier, réparer ou supprimer Lumivo Drive. Cliquez sur «&#x202f;Suivant&#x202f;» pour continuer.</translation>
    </message>
    <message>
        <source>Select a folder on your server and a folder on this computer.</source>
        <translation>Sélectionnez un dossier sur votre serveur et un dossier sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Enter the address and port of the proxy server.</source>
        <translation>Saisissez l’adresse et le port du serveur proxy.</translation>
    </message>
    <message>
        <source>Watching for changes...</source>
        <translation>Surveillance des modifications…</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>«&#x202f;%1&#x202f;» a été mis à jour</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Start Lumivo Drive now</source>
        <translation>Démarrer Lumivo Drive maintenant</translation>
    </message>
    <message>
        <source>March</source>
        <translation>mars</translation>
    </message>
    <message>
        <source>Select what you want to do.</source>
        <translation>Sélectionnez l’opération à effectuer.</translation>
    </message>
    <message>
        <source>Home folders are turned off on your server. Ask your administrator to turn them on.</source>
        <translation>Les dossiers personnels sont désactivés sur votre serveur. Demandez à votre administrateur de les activer.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Tâches de synchronisation</translation>
    </message>
    <message>
        <source>Ready to repair Lumivo Drive</source>
        <translation>Prêt à réparer Lumivo Drive</translation>
    </message>
    <message>
        <source>Skipped files</source>
        <translation>Fichiers ignorés</translation>
    </message>
    <message>
        <source>Lumivo Drive is now installed on this computer.</source>
        <translation>Lumivo Drive est maintenant installé sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Préparation…</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>Langue du système</translation>
    </message>
    <message>
        <source>Your changes have not been saved.\nDo you want to leave without saving them?</source>
        <translation>Vos modifications n’ont pas été enregistrées.\nVoulez-vous quitter sans les enregistrer&#x202f;?</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>Dossier déjà synchronisé</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synchronisation…</translation>
    </message>
    <message>
        <source>Click Remove to remove Lumivo Drive from this computer. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>Cliquez sur «&#x202f;Supprimer&#x202f;» pour supprimer Lumivo Drive de cet ordinateur. Cliquez sur «&#x202f;Précédent&#x202f;» pour revoir votre choix. Cliquez sur «&#x202f;Annuler&#x202f;» pour quitter l’installation.</translation>
    </message>
    <message>
        <source>Welcome back to Lumivo Drive Setup</source>
        <translation>Bienvenue à nouveau dans le programme d’installation de Lumivo Drive</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>Directe</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>This folder is already used by another sync task. Select another folder.</source>
        <translation>Ce dossier est déjà utilisé par une autre tâche de synchronisation. Sélectionnez un autre dossier.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>Espace insuffisant</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>Chargement des dossiers partagés…</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Dissociation…</translation>
    </message>
    <message>
        <source>Files being synced</source>
        <translation>Fichiers en cours de synchronisation</translation>
    </message>
    <message>
        <source>You can change all settings later.</source>
        <translation>Vous pourrez modifier tous les paramètres plus tard.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Afficher l’état de la synchronisation</translation>
    </message>
    <message>
        <source>The folder on your server is not mounted. Mount it there and try again.</source>
        <translation>Le dossier n’est pas monté sur votre serveur. Montez-le et réessayez.</translation>
    </message>
    <message>
        <source>Mark skipped files with an icon</source>
        <translation>Signaler les fichiers ignorés par une icône</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>Vérification du type de connexion…</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Both versions of files with different contents are kept.</source>
        <translation>Les deux versions des fichiers dont le contenu diffère sont conservées.</translation>
    </message>
    <message>
        <source>This folder is already synced. Do you want to add it again?</source>
        <translation>Ce dossier est déjà synchronisé. Voulez-vous l’ajouter à nouveau&#x202f;?</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Paramètres avancés</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Check your permissions on the server.</source>
        <translation>Impossible d’afficher la liste des versions de ce fichier. Vérifiez vos autorisations sur le serveur.</translation>
    </message>
    <message>
        <source>The server&apos;s response could not be understood. Update Lumivo Drive and try again.</source>
        <translation>Impossible d’interpréter la réponse du serveur. Mettez à jour Lumivo Drive et réessayez.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of Lumivo Drive?</source>
        <translation>Voulez-vous vraiment annuler l’installation de Lumivo Drive&#x202f;?</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>A different server was found at this address</source>
        <translation>Un autre serveur a été trouvé à cette adresse</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juillet</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Certains fichiers à mettre à jour sont en cours d’utilisation.</translation>
    </message>
    <message>
        <source>Lumivo Drive is ready.</source>
        <translation>Lumivo Drive est prêt.</translation>
    </message>
    <message>
        <source>The sync database is damaged. Unlink this computer and link it again.</source>
        <translation>La base de données de synchronisation est endommagée. Dissociez cet ordinateur, puis associez-le à nouveau.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>A newer version of Lumivo Drive is already installed on this computer. Remove it before you install this version.</source>
        <translation>Une version plus récente de Lumivo Drive est déjà installée sur cet ordinateur. Supprimez-la avant d’installer cette version.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Bienvenue</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>Synchroniser ce dossier partagé</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>Ouvrir la fenêtre principale</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>Étape en cours&#x202f;:</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Restreindre l’accès</translation>
    </message>
    <message>
        <source>Setup will install Lumivo Drive on this computer. Click Next to continue or Cancel to exit Setup.</source>
        <translation>Le programme d’installation va installer Lumivo Drive sur cet ordinateur. Cliquez sur «&#x202f;Suivant&#x202f;» pour continuer ou sur «&#x202f;Annuler&#x202f;» pour quitter l’installation.</translation>
    </message>
    <message>
        <source>Enter the address of your server or its ZephLink ID, your username and your password.</source>
        <translation>Saisissez l’adresse de votre serveur ou son ID ZephLink, votre nom d’utilisateur et votre mot de passe.</translation>
    </message>
    <message>
        <source>Could not create the folder &quot;%1&quot;. Check its path and your permissions.</source>
        <translation>Impossible de créer le dossier «&#x202f;%1&#x202f;». Vérifiez son chemin et vos autorisations.</translation>
    </message>
    <message>
        <source>Setup ended because of an error.\nYour computer has not been changed.</source>
        <translation>L’installation s’est arrêtée en raison d’une erreur.\nVotre ordinateur n’a pas été modifié.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files to continue syncing.</source>
        <translation>Votre quota sur le serveur est épuisé. Supprimez des fichiers pour poursuivre la synchronisation.</translation>
    </message>
    <message>
        <source>Folder filter</source>
        <translation>Filtre de dossiers</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Check it in the connection settings.</source>
        <translation>Impossible de vérifier le certificat de votre serveur. Contrôlez-le dans les paramètres de connexion.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Choisir un autre dossier</translation>
    </message>
    <message>
        <source>You can open Lumivo Drive at any time from the tray.</source>
        <translation>Vous pouvez ouvrir Lumivo Drive à tout moment depuis la zone de notification.</translation>
    </message>
    <message>
        <source>The file was changed in two places at the same time. Both versions have been kept. Delete the one that you do not need.</source>
        <translation>Le fichier a été modifié à deux endroits en même temps. Les deux versions ont été conservées. Supprimez celle dont vous n’avez pas besoin.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it in the connection settings.</source>
        <translation>Le certificat de votre serveur a changé. Vérifiez-le dans les paramètres de connexion.</translation>
    </message>
    <message>
        <source>Encrypt the connection (SSL)</source>
        <translation>Chiffrer la connexion (SSL)</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nom du dossier</translation>
    </message>
    <message>
        <source>Create a link to a file and send it to anyone, with a password and an end date if you like.</source>
        <translation>Créez un lien vers un fichier et envoyez-le à qui vous voulez, éventuellement avec un mot de passe et une date de fin.</translation>
    </message>
    <message>
        <source>Enter the verification code for your account.</source>
        <translation>Saisissez le code de vérification de votre compte.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informations</translation>
    </message>
    <message>
        <source>You have chosen to remove Lumivo Drive from this computer.</source>
        <translation>Vous avez choisi de supprimer Lumivo Drive de cet ordinateur.</translation>
    </message>
    <message>
        <source>Changes on a network drive cannot be detected. Select a folder on a local disk.</source>
        <translation>Les modifications effectuées sur un lecteur réseau ne peuvent pas être détectées. Sélectionnez un dossier sur un disque local.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Enter another name.</source>
        <translation>Un dossier portant ce nom existe déjà. Saisissez un autre nom.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>vendredi</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Paramètres proxy</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Ouvrir le fichier</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Modifier la connexion</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>À jour</translation>
    </message>
    <message>
        <source>The connection to your server was lost. It will be restored automatically.</source>
        <translation>La connexion à votre serveur a été perdue. Elle sera rétablie automatiquement.</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Aucune autorisation</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Téléchargé</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>Éléments&#x202f;: %1</translation>
    </message>
    <message>
        <source>Do you want to stop syncing &quot;%1&quot; with &quot;%2&quot;?\nNo files will be deleted.</source>
        <translation>Voulez-vous arrêter de synchroniser «&#x202f;%1&#x202f;» avec «&#x202f;%2&#x202f;»&#x202f;?\nAucun fichier ne sera supprimé.</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Changer de dossier local</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>La connexion fonctionne.</translation>
    </message>
    <message>
        <source>Setup complete</source>
        <translation>Configuration terminée</translation>
    </message>
    <message>
        <source>Icons in the tray</source>
        <translation>Icônes dans la zone de notification</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mai</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Mode de synchronisation</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Le mois dernier</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>Parcourir les versions antérieures</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>Il y a %1 h</translation>
    </message>
    <message>
        <source>Files and folders that match these rules are not synced.</source>
        <translation>Les fichiers et les dossiers correspondant à ces règles ne sont pas synchronisés.</translation>
    </message>
    <message>
        <source>Removes Lumivo Drive from this computer. Your synced files are kept.</source>
        <translation>Supprime Lumivo Drive de cet ordinateur. Vos fichiers synchronisés sont conservés.</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Gérer les connexions</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Select a folder on another disk.</source>
        <translation>L’espace disponible sur ce disque est insuffisant. Sélectionnez un dossier sur un autre disque.</translation>
    </message>
    <message>
        <source>File names to skip</source>
        <translation>Noms de fichiers à ignorer</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>jeudi</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Reprendre la synchronisation</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Fichiers récemment modifiés</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>IP address, domain name or ZephLink ID</source>
        <translation>Adresse IP, nom de domaine ou ID ZephLink</translation>
    </message>
    <message>
        <source>Show Lumivo Drive in the context menu</source>
        <translation>Afficher Lumivo Drive dans le menu contextuel</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old. Update it on this computer.</source>
        <translation>Cette version de Lumivo Drive est trop ancienne. Mettez-la à jour sur cet ordinateur.</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Select another folder.</source>
        <translation>Ce dossier ne peut pas être synchronisé. Sélectionnez un autre dossier.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>Le téléchargement a été annulé.</translation>
    </message>
    <message>
        <source>Limit the number of downloads</source>
        <translation>Limiter le nombre de téléchargements</translation>
    </message>
    <message>
        <source>Show sync status icons on files</source>
        <translation>Afficher les icônes d’état de synchronisation sur les fichiers</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>Ce champ est obligatoire.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Afficher le didacticiel</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Associer un autre serveur</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>Je n’accepte pas les termes du contrat de licence</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versions incompatibles</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Première page</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installer</translation>
    </message>
    <message>
        <source>Access denied</source>
        <translation>Accès refusé</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <translation>Saisissez le code de vérification à 6 chiffres</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Compris</translation>
    </message>
    <message>
        <source>The disk with the local sync folder is not connected. Connect it to continue syncing.</source>
        <translation>Le disque contenant le dossier de synchronisation local n’est pas connecté. Connectez-le pour poursuivre la synchronisation.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Ne plus afficher ce message</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Commencer maintenant</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>Rechercher sur le réseau local</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Configurer le proxy manuellement</translation>
    </message>
    <message>
        <source>You can open the files in this folder but not change them.</source>
        <translation>Vous pouvez ouvrir les fichiers de ce dossier, mais pas les modifier.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>Trop de tentatives infructueuses. Patientez quelques minutes et réessayez.</translation>
    </message>
    <message>
        <source>September</source>
        <translation>septembre</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on your server.</source>
        <translation>Le dossier n’est pas vide. Ses fichiers seront fusionnés avec ceux de votre serveur.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>La semaine dernière</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>Le téléchargement est terminé.</translation>
    </message>
    <message>
        <source>You can bring back a version that you overwrote or deleted.</source>
        <translation>Vous pouvez récupérer une version que vous avez écrasée ou supprimée.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>dimanche</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>Dossier de synchronisation</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>Mise à jour requise</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Partage</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>mardi</translation>
    </message>
    <message>
        <source>Start Lumivo Drive when you sign in</source>
        <translation>Démarrer Lumivo Drive à l’ouverture de session</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Gérer les dossiers partagés</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>Il y a %1 min</translation>
    </message>
    <message>
        <source>This shared folder will no longer be synced. The files that are already on this computer will be kept.</source>
        <translation>Ce dossier partagé ne sera plus synchronisé. Les fichiers déjà présents sur cet ordinateur seront conservés.</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>Extensions de fichier à ignorer</translation>
    </message>
    <message>
        <source>Relay</source>
        <translation>Relais</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Échec de l’ouverture de session</translation>
    </message>
    <message>
        <source>Lumivo Drive has no features that can be chosen separately.</source>
        <translation>Lumivo Drive ne comporte aucune fonctionnalité pouvant être choisie séparément.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator. Lumivo Drive will be installed only for you.\nDo you want to continue?</source>
        <translation>Vous n’avez pas ouvert de session en tant qu’administrateur. Lumivo Drive ne sera installé que pour vous.\nVoulez-vous continuer&#x202f;?</translation>
    </message>
    <message>
        <source>Links cannot be created because the file service is turned off. Ask your administrator to turn it on.</source>
        <translation>Impossible de créer des liens, car le service de fichiers est désactivé. Demandez à votre administrateur de l’activer.</translation>
    </message>
    <message>
        <source>Close the applications and try to restart them afterward</source>
        <translation>Fermer les applications et essayer de les redémarrer ensuite</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Contrat de licence</translation>
    </message>
    <message>
        <source>The folder could not be checked because of a system error. Try again later.</source>
        <translation>Impossible de vérifier le dossier en raison d’une erreur système. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is already installed. Do you want to install it again?</source>
        <translation>Cette version de Lumivo Drive est déjà installée. Voulez-vous l’installer à nouveau&#x202f;?</translation>
    </message>
    <message>
        <source>Set a start date</source>
        <translation>Définir une date de début</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gérer</translation>
    </message>
    <message>
        <source>This shared folder is not mounted on your server. Mount it there and try again.</source>
        <translation>Ce dossier partagé n’est pas monté sur votre serveur. Montez-le et réessayez.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Réseau local</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Tous les événements</translation>
    </message>
    <message>
        <source>Unlink this connection</source>
        <translation>Dissocier cette connexion</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>La connexion est instable</translation>
    </message>
    <message>
        <source>This computer and your server now keep these folders in sync.\nYou can add more sync tasks at any time.</source>
        <translation>Ces dossiers sont désormais synchronisés entre cet ordinateur et votre serveur.\nVous pouvez ajouter d’autres tâches de synchronisation à tout moment.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Ne pas synchroniser ce dossier</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed.\nContinue only if you know why.</source>
        <translation>Le certificat de votre serveur a changé.\nNe continuez que si vous en connaissez la raison.</translation>
    </message>
    <message>
        <source>Maximum file size (MB)</source>
        <translation>Taille maximale des fichiers (Mo)</translation>
    </message>
    <message>
        <source>Keep the version that was changed last</source>
        <translation>Conserver la version modifiée en dernier</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Rechercher des serveurs sur le réseau local</translation>
    </message>
    <message>
        <source>Your account is not allowed to sync this folder. Ask your administrator for permission.</source>
        <translation>Votre compte n’est pas autorisé à synchroniser ce dossier. Demandez l’autorisation à votre administrateur.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>À l’instant</translation>
    </message>
    <message>
        <source>Setup is ready to repair Lumivo Drive.</source>
        <translation>Le programme d’installation est prêt à réparer Lumivo Drive.</translation>
    </message>
    <message>
        <source>You can only read this folder. Changes on this computer will not be uploaded.</source>
        <translation>Ce dossier est accessible en lecture seule. Les modifications effectuées sur cet ordinateur ne seront pas envoyées.</translation>
    </message>
    <message>
        <source>You do not have access to this folder. Ask your administrator for permission.</source>
        <translation>Vous n’avez pas accès à ce dossier. Demandez l’autorisation à votre administrateur.</translation>
    </message>
    <message>
        <source>No entries found</source>
        <translation>Aucune entrée trouvée</translation>
    </message>
    <message>
        <source>Your files are being synced. You can keep working in the meantime.</source>
        <translation>Vos fichiers sont en cours de synchronisation. Vous pouvez continuer à travailler pendant ce temps.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.\nContinue only if you trust this network.</source>
        <translation>Impossible de vérifier le certificat de votre serveur.\nNe continuez que si vous faites confiance à ce réseau.</translation>
    </message>
    <message>
        <source>Files left to sync: %1</source>
        <translation>Fichiers restant à synchroniser&#x202f;: %1</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive</source>
        <translation>Bienvenue dans Lumivo Drive</translation>
    </message>
    <message>
        <source>Set an end date</source>
        <translation>Définir une date de fin</translation>
    </message>
    <message>
        <source>The sync task could not be removed. Try again later.</source>
        <translation>Impossible de supprimer la tâche de synchronisation. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>Click the icon to see which files are being synced.</source>
        <translation>Cliquez sur l’icône pour voir les fichiers en cours de synchronisation.</translation>
    </message>
    <message>
        <source>Your sync folder</source>
        <translation>Votre dossier de synchronisation</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Ask your administrator to install a valid one.</source>
        <translation>Impossible de vérifier le certificat de votre serveur. Demandez à votre administrateur d’installer un certificat valide.</translation>
    </message>
    <message>
        <source>The server has been replaced. Link this computer again.</source>
        <translation>Le serveur a été remplacé. Associez cet ordinateur à nouveau.</translation>
    </message>
    <message>
        <source>Follow these steps to link this computer to your server.</source>
        <translation>Suivez ces étapes pour associer cet ordinateur à votre serveur.</translation>
    </message>
    <message>
        <source>Proxy server</source>
        <translation>Serveur proxy</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Fichiers mis à jour</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Continuer quand même</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Terminer</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Icons on local files</source>
        <translation>Icônes sur les fichiers locaux</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>Aucune action disponible</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>Syncing stopped</source>
        <translation>Synchronisation arrêtée</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Dossier de synchronisation local</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Your server is still indexing &quot;%1&quot;. You can sync it when indexing is complete.</source>
        <translation>Votre serveur indexe encore «&#x202f;%1&#x202f;». Vous pourrez le synchroniser une fois l’indexation terminée.</translation>
    </message>
    <message>
        <source>When a file has been changed in two places</source>
        <translation>Lorsqu’un fichier a été modifié à deux endroits</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not empty.\nDo you want to use it anyway?</source>
        <translation>Le dossier «&#x202f;%1&#x202f;» n’est pas vide.\nVoulez-vous l’utiliser quand même&#x202f;?</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Changer de dossier</translation>
    </message>
    <message>
        <source>Sync your home folder using the recommended settings.</source>
        <translation>Synchronisez votre dossier personnel avec les paramètres recommandés.</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>Chargement des dossiers…</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>mercredi</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>Chiffrement SSL</translation>
    </message>
    <message>
        <source>Ready to install Lumivo Drive</source>
        <translation>Prêt à installer Lumivo Drive</translation>
    </message>
    <message>
        <source>Run Setup again whenever you want to install Lumivo Drive.</source>
        <translation>Relancez le programme d’installation lorsque vous voudrez installer Lumivo Drive.</translation>
    </message>
    <message>
        <source>Your home folder on the server now syncs with this computer.</source>
        <translation>Votre dossier personnel sur le serveur se synchronise désormais avec cet ordinateur.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Vue d’ensemble du serveur</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Mettre en pause</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Mettre la synchronisation en pause</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>samedi</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete some files to continue syncing.</source>
        <translation>Le quota de ce dossier partagé est épuisé. Supprimez des fichiers pour poursuivre la synchronisation.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>Your new sync task</source>
        <translation>Votre nouvelle tâche de synchronisation</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Historique des téléchargements</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Téléchargement…</translation>
    </message>
    <message>
        <source>The new language takes effect the next time Lumivo Drive starts.</source>
        <translation>La nouvelle langue sera appliquée au prochain démarrage de Lumivo Drive.</translation>
    </message>
    <message>
        <source>Installing Lumivo Drive</source>
        <translation>Installation de Lumivo Drive en cours</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Afficher les notifications sur le bureau</translation>
    </message>
    <message>
        <source>Quick setup suits most users. You can change everything later.</source>
        <translation>La configuration rapide convient à la plupart des utilisateurs. Vous pourrez tout modifier plus tard.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full.</source>
        <translation>Le disque de votre serveur est plein.</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>Remonter dans le temps</translation>
    </message>
</context>
</TS>

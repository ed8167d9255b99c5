<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Select the local folder that you want to sync with your server.</source>
        <translation>Sunucunuzla eşitlemek istediğiniz yerel klasörü seçin.</translation>
    </message>
    <message>
        <source>Could not reach the ZephLink service. Check your network connection and try again.</source>
        <translation>ZephLink hizmetine ulaşılamadı. Ağ bağlantınızı denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Filter rules</source>
        <translation>Filtre kuralları</translation>
    </message>
    <message>
        <source>Mount point not allowed</source>
        <translation>Bağlama noktasına izin verilmiyor</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Parola</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Tarih aralığı</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on your server. Select another folder.</source>
        <translation>Bu paylaşılan klasör artık sunucunuzda yok. Başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>Kullanıcı adınızı girin.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>Bu adlara sahip dosyalar eşitlenmez.</translation>
    </message>
    <message>
        <source>Could not connect to your server. Check your network connection and try again.</source>
        <translation>Sunucunuza bağlanılamadı. Ağ bağlantınızı denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Onar</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Yalnızca indirme</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Klasörü aç</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Eşitleme yönü</translation>
    </message>
    <message>
        <source>Your first sync task on this server</source>
        <translation>Bu sunucudaki ilk eşitleme göreviniz</translation>
    </message>
    <message>
        <source>Restores missing or damaged files, shortcuts and registry entries.</source>
        <translation>Eksik veya bozuk dosyaları, kısayolları ve kayıt defteri girdilerini geri yükler.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Hedef</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>Güncellemek için buraya tıklayın</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Klasör yolu</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tür</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Paylaşılan klasörler</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Hayır, teşekkürler</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Eylem</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Sertifika uyarısı</translation>
    </message>
    <message>
        <source>Change connection settings</source>
        <translation>Bağlantı ayarlarını değiştir</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Bağlantı sınanıyor…</translation>
    </message>
    <message>
        <source>Lumivo Drive Setup</source>
        <translation>Lumivo Drive kurulumu</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Bugün</translation>
    </message>
    <message>
        <source>Setup is ready to install Lumivo Drive on this computer.</source>
        <translation>Kurulum programı, Lumivo Drive uygulamasını bu bilgisayara yüklemeye hazır.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Yeni paylaşılan klasör</translation>
    </message>
    <message>
        <source>No usable folder was found. Ask your administrator for access to a shared folder.</source>
        <translation>Kullanılabilir bir klasör bulunamadı. Yöneticinizden paylaşılan bir klasör için erişim izni isteyin.</translation>
    </message>
    <message>
        <source>Could not enable syncing for this shared folder. Try again later.</source>
        <translation>Bu paylaşılan klasör için eşitleme etkinleştirilemedi. Daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bitiş</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Düzenle</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Bu klasörü yeniden eşitle</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Hayır</translation>
    </message>
    <message>
        <source>%1 d ago</source>
        <translation>%1 gün önce</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is a mount point and cannot be synced. Select another folder.</source>
        <translation>“%1” klasörü bir bağlama noktası olduğundan eşitlenemez. Başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>This computer is already linked to &quot;%1&quot;. Edit the existing connection instead.</source>
        <translation>Bu bilgisayar “%1” ile zaten eşleştirilmiş. Bunun yerine var olan bağlantıyı düzenleyin.</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Güncelleme var</translation>
    </message>
    <message>
        <source>Enter a port number from 1 to 65535.</source>
        <translation>1 ile 65535 arasında bir bağlantı noktası numarası girin.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>Eşitleme klasörünü aç</translation>
    </message>
    <message>
        <source>Lumivo Drive has been installed</source>
        <translation>Lumivo Drive yüklendi</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Eşleştirmeyi kaldır</translation>
    </message>
    <message>
        <source>This folder overlaps with the folder of another sync task. Select another folder.</source>
        <translation>Bu klasör, başka bir eşitleme görevinin klasörüyle çakışıyor. Başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>The folders on your server could not be listed. Check your network connection and try again.</source>
        <translation>Sunucunuzdaki klasörler listelenemedi. Ağ bağlantınızı denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>İlgilenmeniz gerekiyor</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it before you continue.</source>
        <translation>Sunucunuzun sertifikası değişti. Devam etmeden önce sertifikayı denetleyin.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Son sayfa</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Çalışıyor</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Haziran</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>Güncelleme başarısız oldu. Daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.</source>
        <translation>Sunucunuzun sertifikası doğrulanamadı.</translation>
    </message>
    <message>
        <source>Please wait. This may take several minutes.</source>
        <translation>Lütfen bekleyin. Bu işlem birkaç dakika sürebilir.</translation>
    </message>
    <message>
        <source>Choose which features are installed</source>
        <translation>Hangi özelliklerin yükleneceğini seçin</translation>
    </message>
    <message>
        <source>Your files, wherever you work</source>
        <translation>Nerede çalışırsanız çalışın, dosyalarınız yanınızda</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Bu klasörleri yeniden eşitle</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full. Free up some space to continue syncing.</source>
        <translation>Bu bilgisayarın diski dolu. Eşitlemeye devam etmek için yer açın.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Bildirim alanında siyah beyaz simge kullan</translation>
    </message>
    <message>
        <source>Some fields are not filled in correctly. Correct them and try again.</source>
        <translation>Bazı alanlar doğru doldurulmamış. Bu alanları düzeltip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Setup was interrupted. Your computer has not been changed.</source>
        <translation>Kurulum yarıda kesildi. Bilgisayarınızda hiçbir değişiklik yapılmadı.</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Klasör bulunamadı</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Duraklatıldı</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Eşitlenecek klasörleri seçin</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Choose a folder on your server and the local folder to sync it with.</source>
        <translation>Sunucunuzdaki bir klasörü ve onunla eşitlenecek yerel klasörü seçin.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Durum</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a dot</source>
        <translation>Adı noktayla başlayan dosya ve klasörleri atla</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Özel aralık</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>İnternet</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Check both and try again.</source>
        <translation>Kullanıcı adı veya parola yanlış. İkisini de denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>This address belongs to another server. Check the address and try again.</source>
        <translation>Bu adres başka bir sunucuya ait. Adresi denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Dosya türü</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>Kurulum türünü seçin</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Pazartesi</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files or ask your administrator for more space.</source>
        <translation>Sunucudaki kotanız doldu. Bazı dosyaları silin veya yöneticinizden daha fazla alan isteyin.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Ağustos</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>İlerleme</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Başlatılıyor…</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Hakkında</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached. Stop syncing one of them first.</source>
        <translation>Paylaşılan klasörler için üst sınıra ulaşıldı. Önce bu klasörlerden birini eşitlemeyi durdurun.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Sistemin proxy ayarlarını kullan</translation>
    </message>
    <message>
        <source>Keep both versions and rename the local one</source>
        <translation>İki sürümü de koru ve yerel olanı yeniden adlandır</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Dil</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has stopped syncing. Open Lumivo Drive for details.</source>
        <translation>“%1” için eşitleme durdu. Ayrıntılar için Lumivo Drive uygulamasını açın.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Sıfırla</translation>
    </message>
    <message>
        <source>ZephLink ID</source>
        <translation>ZephLink kimliği</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions for this folder. Choose another direction.</source>
        <translation>Eşitleme yönü bu klasördeki izinlerinize uygun değil. Başka bir yön seçin.</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Daha fazla ayrıntı</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Ekim</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Şubat</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old. Update it on your server.</source>
        <translation>Bu Lumivo Drive Server sürümü çok eski. Sunucunuzda güncelleyin.</translation>
    </message>
    <message>
        <source>Sync rules</source>
        <translation>Eşitleme kuralları</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. Check your permissions on the server.</source>
        <translation>Bu dosya indirilemiyor. Sunucudaki izinlerinizi denetleyin.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Bağlanılıyor…</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Proxy olmadan bağlan</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Paylaşılan klasör</translation>
    </message>
    <message>
        <source>Resume this connection</source>
        <translation>Bu bağlantıyı sürdür</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Paylaşım bağlantısı al</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Seçenekler</translation>
    </message>
    <message>
        <source>The icon in the tray shows at a glance whether your files are in sync.</source>
        <translation>Bildirim alanındaki simge, dosyalarınızın eşitlenip eşitlenmediğini bir bakışta gösterir.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Başlangıç</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Yeniden eşleştir</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Geçmiş</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Evet</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Sürüm</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Salt okunur</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Nisan</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Ağ ayarları</translation>
    </message>
    <message>
        <source>Setup is applying your choices.</source>
        <translation>Kurulum programı seçimlerinizi uyguluyor.</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They will remain on your server.</source>
        <translation>Burada seçimini kaldırdığınız klasörler bu bilgisayardan kaldırılır, ancak sunucunuzda kalır.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full. Free up some space on it to continue syncing.</source>
        <translation>Sunucunuzun diski dolu. Eşitlemeye devam etmek için diskte yer açın.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Yardım</translation>
    </message>
    <message>
        <source>The download failed. Check your network connection and try again.</source>
        <translation>İndirme başarısız oldu. Ağ bağlantınızı denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Lumivo Drive</source>
        <translation>Lumivo Drive</translation>
    </message>
    <message>
        <source>Save and copy link</source>
        <translation>Kaydet ve bağlantıyı kopyala</translation>
    </message>
    <message>
        <source>Enter your server&apos;s address and your account details.</source>
        <translation>Sunucunuzun adresini ve hesap bilgilerinizi girin.</translation>
    </message>
    <message>
        <source>Let&apos;s get started</source>
        <translation>Haydi başlayalım</translation>
    </message>
    <message>
        <source>There are no changes to save.</source>
        <translation>Kaydedilecek değişiklik yok.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Önceki %1 sayfa</translation>
    </message>
    <message>
        <source>To install Lumivo Drive later, run Setup again.</source>
        <translation>Lumivo Drive uygulamasını daha sonra yüklemek için kurulum programını yeniden çalıştırın.</translation>
    </message>
    <message>
        <source>Right-click a file in a synced folder to share it or to see its earlier versions.</source>
        <translation>Eşitlenen bir klasördeki dosyayı paylaşmak veya önceki sürümlerini görmek için dosyaya sağ tıklayın.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Dün</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Durum bilgileri</translation>
    </message>
    <message>
        <source>Lumivo Drive could not be started. Restart the computer and try again.</source>
        <translation>Lumivo Drive başlatılamadı. Bilgisayarı yeniden başlatıp tekrar deneyin.</translation>
    </message>
    <message>
        <source>Keep the version on the server</source>
        <translation>Sunucudaki sürümü koru</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Ocak</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old for your server. Update it to version %1 or later.</source>
        <translation>Bu Lumivo Drive sürümü sunucunuz için çok eski. %1 veya daha yeni bir sürüme güncelleyin.</translation>
    </message>
    <message>
        <source>Change, repair or remove Lumivo Drive</source>
        <translation>Lumivo Drive uygulamasını değiştirin, onarın veya kaldırın</translation>
    </message>
    <message>
        <source>Connect through ZephLink</source>
        <translation>ZephLink üzerinden bağlan</translation>
    </message>
    <message>
        <source>Click Install to begin. Click Back to review or change your choices. Click Cancel to exit Setup.</source>
        <translation>Başlamak için Yükle’ye tıklayın. Seçimlerinizi gözden geçirmek veya değiştirmek için Geri’ye tıklayın. Kurulumdan çıkmak için İptal’e tıklayın.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>Bir sorun oluştu. Daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>Lisans sözleşmesinin koşullarını kabul ediyorum</translation>
    </message>
    <message>
        <source>Selective sync is not available yet. Update Lumivo Drive Server on your server to use it.</source>
        <translation>Seçmeli eşitleme henüz kullanılamıyor. Kullanmak için sunucunuzda Lumivo Drive Server uygulamasını güncelleyin.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Yeniden adlandırıldı</translation>
    </message>
    <message>
        <source>This folder is read-only</source>
        <translation>Bu klasör salt okunur</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Ready to remove Lumivo Drive</source>
        <translation>Lumivo Drive kaldırılmaya hazır</translation>
    </message>
    <message>
        <source>Choose what to sync with this computer and where to keep it.</source>
        <translation>Bu bilgisayarla nelerin eşitleneceğini ve nerede tutulacağını seçin.</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Karşıya yüklendi</translation>
    </message>
    <message>
        <source>Your access was revoked, and the synced files were removed from this computer. Contact your administrator.</source>
        <translation>Erişiminiz iptal edildi ve eşitlenen dosyalar bu bilgisayardan kaldırıldı. Yöneticinize başvurun.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Beklemede</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Karşıya yükleniyor…</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Ayarlar uygulanıyor…</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Lütfen aşağıdaki lisans sözleşmesini dikkatle okuyun.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Birleştirme modu</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Bu klasörleri eşitleme dışında bırak</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Çık</translation>
    </message>
    <message>
        <source>Click Repair to begin. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>Başlamak için Onar’a tıklayın. Seçiminizi gözden geçirmek için Geri’ye tıklayın. Kurulumdan çıkmak için İptal’e tıklayın.</translation>
    </message>
    <message>
        <source>You cannot write to this folder. Change its permissions or select another folder.</source>
        <translation>Bu klasöre yazamazsınız. Klasörün izinlerini değiştirin veya başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Seçmeli eşitleme</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Kullanıcı adı</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Aralık</translation>
    </message>
    <message>
        <source>Enter a file size from %1 to %2 MB.</source>
        <translation>%1 ile %2 MB arasında bir dosya boyutu girin.</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files that are already on this computer will be kept.</source>
        <translation>“%1” için eşitleme durdurulsun mu? Bu bilgisayarda bulunan dosyalar korunur.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Hızlı kurulum</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Gelişmiş kurulum</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Kasım</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Klasör seçin</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Sunucu adresi</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Sunucudaki kotanız doldu.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Bildirim alanı simgesine çift tıklandığında</translation>
    </message>
    <message>
        <source>Lumivo Drive is initializing...</source>
        <translation>Lumivo Drive hazırlanıyor…</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Dosyalar denetleniyor…</translation>
    </message>
    <message>
        <source>This computer is now linked to &quot;%1&quot;. Syncing starts right away.</source>
        <translation>Bu bilgisayar “%1” ile eşleştirildi. Eşitleme hemen başlıyor.</translation>
    </message>
    <message>
        <source>Everything in sync</source>
        <translation>Her şey eşitlenmiş durumda</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Tarih</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Güncelleniyor…</translation>
    </message>
    <message>
        <source>Custom period</source>
        <translation>Özel süre</translation>
    </message>
    <message>
        <source>Check the sync status</source>
        <translation>Eşitleme durumunu izleyin</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Yükleniyor…</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Etkin değil</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Dosya</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update:</source>
        <translation>Aşağıdaki uygulamalar, kurulum programının güncellemesi gereken dosyaları kullanıyor:</translation>
    </message>
    <message>
        <source>Open Lumivo Drive</source>
        <translation>Lumivo Drive uygulamasını aç</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction and the sync rules yourself.</source>
        <translation>Klasörleri, eşitleme yönünü ve eşitleme kurallarını kendiniz seçin.</translation>
    </message>
    <message>
        <source>Repair the installed files</source>
        <translation>Yüklü dosyaları onarın</translation>
    </message>
    <message>
        <source>Enter a number of versions greater than zero.</source>
        <translation>Sıfırdan büyük bir sürüm sayısı girin.</translation>
    </message>
    <message>
        <source>This username does not exist on your server. Check it and try again.</source>
        <translation>Bu kullanıcı adı sunucunuzda yok. Kullanıcı adını denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Update Lumivo Drive</source>
        <translation>Lumivo Drive güncellemesi</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>Daha fazla bilgi</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Oluşturulma tarihi</translation>
    </message>
    <message>
        <source>Keep the files on this computer and on your server in sync.</source>
        <translation>Bu bilgisayardaki ve sunucunuzdaki dosyaları eşitlenmiş durumda tutun.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>This folder is already synced by another cloud sync app. Select another folder to avoid conflicts.</source>
        <translation>Bu klasör başka bir bulut eşitleme uygulaması tarafından zaten eşitleniyor. Çakışmaları önlemek için başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Boyut</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Bilgisayar adı</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Yoksay</translation>
    </message>
    <message>
        <source>The proxy requires a username and a password</source>
        <translation>Proxy, kullanıcı adı ve parola gerektiriyor</translation>
    </message>
    <message>
        <source>The server did not accept the request. Check your entries and try again.</source>
        <translation>Sunucu isteği kabul etmedi. Girdiğiniz bilgileri denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old for Lumivo Drive on this computer. Update it on your server to version %1 or later.</source>
        <translation>Bu Lumivo Drive Server sürümü, bu bilgisayardaki Lumivo Drive uygulaması için çok eski. Sunucunuzda %1 veya daha yeni bir sürüme güncelleyin.</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Gönder:</translation>
    </message>
    <message>
        <source>The ZephLink service reported an error. Try again later.</source>
        <translation>ZephLink hizmeti bir hata bildirdi. Daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>Close these applications and click Retry, or click Ignore and restart the computer later.</source>
        <translation>Bu uygulamaları kapatıp Yeniden dene’ye tıklayın ya da Yoksay’a tıklayıp bilgisayarı daha sonra yeniden başlatın.</translation>
    </message>
    <message>
        <source>Lets you change which features are installed.</source>
        <translation>Yüklü özellikleri değiştirmenizi sağlar.</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from &quot;%1&quot;?\nThe files that are already on this computer will be kept.</source>
        <translation>Bu bilgisayarın “%1” ile eşleştirmesini kaldırmak istiyor musunuz?\nBu bilgisayarda bulunan dosyalar korunur.</translation>
    </message>
    <message>
        <source>This folder is used by a backup task. Select another folder.</source>
        <translation>Bu klasör bir yedekleme görevi tarafından kullanılıyor. Başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full.</source>
        <translation>Bu bilgisayarın diski dolu.</translation>
    </message>
    <message>
        <source>This folder is not empty</source>
        <translation>Bu klasör boş değil</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Dosyanın bulunduğu klasörü aç</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Bağlantı türü</translation>
    </message>
    <message>
        <source>This ZephLink ID does not exist. Check it and try again.</source>
        <translation>Böyle bir ZephLink kimliği yok. Kimliği denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Do not sync these files</source>
        <translation>Bu dosyaları eşitleme dışında bırak</translation>
    </message>
    <message>
        <source>Remove Lumivo Drive from this computer</source>
        <translation>Lumivo Drive uygulamasını bu bilgisayardan kaldırın</translation>
    </message>
    <message>
        <source>Your account requires two-step verification. Set it up on your server, then sign in again.</source>
        <translation>Hesabınız iki adımlı doğrulama gerektiriyor. Bunu sunucunuzda ayarlayıp yeniden oturum açın.</translation>
    </message>
    <message>
        <source>The file service is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>Sunucunuzda dosya hizmeti kapalı. Yöneticinizden hizmeti açmasını isteyin.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Genel</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Silindi</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Eşitleme görevi ekleyin</translation>
    </message>
    <message>
        <source>Share with others</source>
        <translation>Başkalarıyla paylaşın</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>Kilitli dosya</translation>
    </message>
    <message>
        <source>Do not close the applications (you will have to restart the computer later)</source>
        <translation>Uygulamaları açık bırak (bilgisayarı daha sonra yeniden başlatmanız gerekecek)</translation>
    </message>
    <message>
        <source>About Lumivo Drive</source>
        <translation>Lumivo Drive hakkında</translation>
    </message>
    <message>
        <source>File service off</source>
        <translation>Dosya hizmeti kapalı</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Sonraki %1 sayfa</translation>
    </message>
    <message>
        <source>The local sync folder was moved or deleted. Put it back or choose a new one.</source>
        <translation>Yerel eşitleme klasörü taşındı veya silindi. Klasörü eski yerine koyun ya da yeni bir klasör seçin.</translation>
    </message>
    <message>
        <source>This file cannot be shared. Check your permissions on the server.</source>
        <translation>Bu dosya paylaşılamıyor. Sunucudaki izinlerinizi denetleyin.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Sürdür</translation>
    </message>
    <message>
        <source>Click Finish to exit Setup.</source>
        <translation>Kurulumdan çıkmak için Son’a tıklayın.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Geçerlilik süresi</translation>
    </message>
    <message>
        <source>Pause this connection</source>
        <translation>Bu bağlantıyı duraklat</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>sizinle paylaşıldı.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Kullanımda olan dosyalar</translation>
    </message>
    <message>
        <source>Setup ended prematurely</source>
        <translation>Kurulum tamamlanmadan sona erdi</translation>
    </message>
    <message>
        <source>File sharing through ZephLink is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>Sunucunuzda ZephLink üzerinden dosya paylaşımı kapalı. Yöneticinizden bunu açmasını isteyin.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Devam et</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Bağlantı</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>Tek yönlü eşitleme (yalnızca indirme)</translation>
    </message>
    <message>
        <source>The files in both folders will be merged.</source>
        <translation>İki klasördeki dosyalar birleştirilecek.</translation>
    </message>
    <message>
        <source>This folder on your server is already synced with this computer.\nA second sync task for it would take up twice the disk space.</source>
        <translation>Sunucunuzdaki bu klasör bu bilgisayarla zaten eşitleniyor.\nKlasör için ikinci bir eşitleme görevi iki kat disk alanı kaplar.</translation>
    </message>
    <message>
        <source>Setup was interrupted</source>
        <translation>Kurulum yarıda kesildi</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Enter the current code and try again.</source>
        <translation>Doğrulama kodu yanlış. Geçerli kodu girip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>İki yönlü eşitleme</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ekle</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Etkin</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Hata</translation>
    </message>
    <message>
        <source>Your server is blocking this computer&apos;s address. Ask your administrator to allow it.</source>
        <translation>Sunucunuz bu bilgisayarın adresini engelliyor. Yöneticinizden adrese izin vermesini isteyin.</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>Kullanıcı adınız ve parolanız denetleniyor…</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Yazdır</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive Setup</source>
        <translation>Lumivo Drive kurulumuna hoş geldiniz</translation>
    </message>
    <message>
        <source>Enter no more than %1 characters.</source>
        <translation>En fazla %1 karakter girin.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Birleştir</translation>
    </message>
    <message>
        <source>Sync all file attributes and permissions</source>
        <translation>Tüm dosya özniteliklerini ve izinlerini eşitle</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available on &quot;%2&quot;. Click here to sync it.</source>
        <translation>“%1” paylaşılan klasörü “%2” üzerinde kullanılabilir. Eşitlemek için buraya tıklayın.</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Anahtar sözcük</translation>
    </message>
    <message>
        <source>Create an empty folder for Lumivo Drive</source>
        <translation>Lumivo Drive için boş bir klasör oluştur</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Dosya filtresi</translation>
    </message>
    <message>
        <source>Everything that you put into your sync folder appears on your server and on your other computers.</source>
        <translation>Eşitleme klasörünüze koyduğunuz her şey sunucunuzda ve diğer bilgisayarlarınızda görünür.</translation>
    </message>
    <message>
        <source>Setup can change, repair or remove Lumivo Drive. Click Next to continue.</source>
        <translation>Kurulum programı, Lumivo Drive uygulamasını değiştirebilir, onarabilir veya kaldırabilir. Devam etmek için İleri’ye tıklayın.</translation>
    </message>
    <message>
        <source>Select a folder on your server and a folder on this computer.</source>
        <translation>Sunucunuzdaki bir klasörü ve bu bilgisayardaki bir klasörü seçin.</translation>
    </message>
    <message>
        <source>Enter the address and port of the proxy server.</source>
        <translation>Proxy sunucusunun adresini ve bağlantı noktasını girin.</translation>
    </message>
    <message>
        <source>Watching for changes...</source>
        <translation>Değişiklikler izleniyor…</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Değiştir</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Uygula</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>“%1” güncellendi</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Kimlik</translation>
    </message>
    <message>
        <source>Start Lumivo Drive now</source>
        <translation>Lumivo Drive uygulamasını şimdi başlat</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Mart</translation>
    </message>
    <message>
        <source>Select what you want to do.</source>
        <translation>Yapmak istediğiniz işlemi seçin.</translation>
    </message>
    <message>
        <source>Home folders are turned off on your server. Ask your administrator to turn them on.</source>
        <translation>Sunucunuzda ana klasörler kapalı. Yöneticinizden bunları açmasını isteyin.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Eşitleme görevleri</translation>
    </message>
    <message>
        <source>Ready to repair Lumivo Drive</source>
        <translation>Lumivo Drive onarılmaya hazır</translation>
    </message>
    <message>
        <source>Skipped files</source>
        <translation>Atlanan dosyalar</translation>
    </message>
    <message>
        <source>Lumivo Drive is now installed on this computer.</source>
        <translation>Lumivo Drive artık bu bilgisayarda yüklü.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Hazırlanıyor…</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Yeniden dene</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>Sistem dili</translation>
    </message>
    <message>
        <source>Your changes have not been saved.\nDo you want to leave without saving them?</source>
        <translation>Değişiklikleriniz kaydedilmedi.\nKaydetmeden çıkmak istiyor musunuz?</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>Klasör zaten eşitleniyor</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Eşitleniyor…</translation>
    </message>
    <message>
        <source>Click Remove to remove Lumivo Drive from this computer. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>Lumivo Drive uygulamasını bu bilgisayardan kaldırmak için Kaldır’a tıklayın. Seçiminizi gözden geçirmek için Geri’ye tıklayın. Kurulumdan çıkmak için İptal’e tıklayın.</translation>
    </message>
    <message>
        <source>Welcome back to Lumivo Drive Setup</source>
        <translation>Lumivo Drive kurulumuna yeniden hoş geldiniz</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>Doğrudan</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dosyalar</translation>
    </message>
    <message>
        <source>This folder is already used by another sync task. Select another folder.</source>
        <translation>Bu klasör zaten başka bir eşitleme görevi tarafından kullanılıyor. Başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>Yer kalmadı</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>Paylaşılan klasörler yükleniyor…</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Eşleştirme kaldırılıyor…</translation>
    </message>
    <message>
        <source>Files being synced</source>
        <translation>Eşitlenmekte olan dosyalar</translation>
    </message>
    <message>
        <source>You can change all settings later.</source>
        <translation>Tüm ayarları daha sonra değiştirebilirsiniz.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Eşitleme durumunu göster</translation>
    </message>
    <message>
        <source>The folder on your server is not mounted. Mount it there and try again.</source>
        <translation>Sunucunuzdaki klasör bağlı değil. Klasörü sunucuda bağlayıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>Mark skipped files with an icon</source>
        <translation>Atlanan dosyaları simgeyle işaretle</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>Bağlantı türü denetleniyor…</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>İleri</translation>
    </message>
    <message>
        <source>Both versions of files with different contents are kept.</source>
        <translation>İçeriği farklı olan dosyaların iki sürümü de korunur.</translation>
    </message>
    <message>
        <source>This folder is already synced. Do you want to add it again?</source>
        <translation>Bu klasör zaten eşitleniyor. Yeniden eklemek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Gelişmiş ayarlar</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Check your permissions on the server.</source>
        <translation>Bu dosyanın sürümleri listelenemiyor. Sunucudaki izinlerinizi denetleyin.</translation>
    </message>
    <message>
        <source>The server&apos;s response could not be understood. Update Lumivo Drive and try again.</source>
        <translation>Sunucunun yanıtı anlaşılamadı. Lumivo Drive uygulamasını güncelleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of Lumivo Drive?</source>
        <translation>Lumivo Drive yüklemesini iptal etmek istediğinizden emin misiniz?</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Bağlantı noktası</translation>
    </message>
    <message>
        <source>A different server was found at this address</source>
        <translation>Bu adreste başka bir sunucu bulundu</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Temmuz</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Güncellenmesi gereken bazı dosyalar kullanımda.</translation>
    </message>
    <message>
        <source>Lumivo Drive is ready.</source>
        <translation>Lumivo Drive hazır.</translation>
    </message>
    <message>
        <source>The sync database is damaged. Unlink this computer and link it again.</source>
        <translation>Eşitleme veritabanı bozuk. Bu bilgisayarın eşleştirmesini kaldırıp bilgisayarı yeniden eşleştirin.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>A newer version of Lumivo Drive is already installed on this computer. Remove it before you install this version.</source>
        <translation>Bu bilgisayarda Lumivo Drive uygulamasının daha yeni bir sürümü zaten yüklü. Bu sürümü yüklemeden önce daha yeni sürümü kaldırın.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Hoş geldiniz</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>Bu paylaşılan klasörü eşitle</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>Ana pencereyi aç</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>Geçerli adım:</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Erişimi kısıtla</translation>
    </message>
    <message>
        <source>Setup will install Lumivo Drive on this computer. Click Next to continue or Cancel to exit Setup.</source>
        <translation>Kurulum programı, Lumivo Drive uygulamasını bu bilgisayara yükleyecek. Devam etmek için İleri’ye, kurulumdan çıkmak için İptal’e tıklayın.</translation>
    </message>
    <message>
        <source>Enter the address of your server or its ZephLink ID, your username and your password.</source>
        <translation>Sunucunuzun adresini veya ZephLink kimliğini, kullanıcı adınızı ve parolanızı girin.</translation>
    </message>
    <message>
        <source>Could not create the folder &quot;%1&quot;. Check its path and your permissions.</source>
        <translation>“%1” klasörü oluşturulamadı. Klasörün yolunu ve izinlerinizi denetleyin.</translation>
    </message>
    <message>
        <source>Setup ended because of an error.\nYour computer has not been changed.</source>
        <translation>Kurulum bir hata nedeniyle sona erdi.\nBilgisayarınızda hiçbir değişiklik yapılmadı.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files to continue syncing.</source>
        <translation>Sunucudaki kotanız doldu. Eşitlemeye devam etmek için bazı dosyaları silin.</translation>
    </message>
    <message>
        <source>Folder filter</source>
        <translation>Klasör filtresi</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Check it in the connection settings.</source>
        <translation>Sunucunuzun sertifikası doğrulanamadı. Bağlantı ayarlarında sertifikayı denetleyin.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Başka bir klasör seç</translation>
    </message>
    <message>
        <source>You can open Lumivo Drive at any time from the tray.</source>
        <translation>Lumivo Drive uygulamasını istediğiniz zaman bildirim alanından açabilirsiniz.</translation>
    </message>
    <message>
        <source>The file was changed in two places at the same time. Both versions have been kept. Delete the one that you do not need.</source>
        <translation>Dosya aynı anda iki yerde değiştirildi. İki sürüm de korundu. Gereksinim duymadığınız sürümü silin.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it in the connection settings.</source>
        <translation>Sunucunuzun sertifikası değişti. Bağlantı ayarlarında sertifikayı denetleyin.</translation>
    </message>
    <message>
        <source>Encrypt the connection (SSL)</source>
        <translation>Bağlantıyı şifrele (SSL)</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Klasör adı</translation>
    </message>
    <message>
        <source>Create a link to a file and send it to anyone, with a password and an end date if you like.</source>
        <translation>Bir dosya için bağlantı oluşturup dilediğiniz kişiye gönderin; isterseniz parola ve bitiş tarihi ekleyin.</translation>
    </message>
    <message>
        <source>Enter the verification code for your account.</source>
        <translation>Hesabınızın doğrulama kodunu girin.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Bilgi</translation>
    </message>
    <message>
        <source>You have chosen to remove Lumivo Drive from this computer.</source>
        <translation>Lumivo Drive uygulamasını bu bilgisayardan kaldırmayı seçtiniz.</translation>
    </message>
    <message>
        <source>Changes on a network drive cannot be detected. Select a folder on a local disk.</source>
        <translation>Ağ sürücüsündeki değişiklikler algılanamaz. Yerel diskte bir klasör seçin.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Enter another name.</source>
        <translation>Bu ada sahip bir klasör zaten var. Başka bir ad girin.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Cuma</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxy ayarları</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Dosyayı aç</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Bağlantıyı düzenle</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Güncel</translation>
    </message>
    <message>
        <source>The connection to your server was lost. It will be restored automatically.</source>
        <translation>Sunucunuzla bağlantı kesildi. Bağlantı otomatik olarak yeniden kurulacak.</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>İzin yok</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>İndirildi</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>Öğe sayısı: %1</translation>
    </message>
    <message>
        <source>Do you want to stop syncing &quot;%1&quot; with &quot;%2&quot;?\nNo files will be deleted.</source>
        <translation>“%1” ile “%2” arasındaki eşitlemeyi durdurmak istiyor musunuz?\nHiçbir dosya silinmez.</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Yerel klasörü değiştir</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>Bağlantı çalışıyor.</translation>
    </message>
    <message>
        <source>Setup complete</source>
        <translation>Kurulum tamamlandı</translation>
    </message>
    <message>
        <source>Icons in the tray</source>
        <translation>Bildirim alanındaki simgeler</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mayıs</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Eşitleme modu</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Geçen ay</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>Önceki sürümlere göz at</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zaman</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>%1 sa. önce</translation>
    </message>
    <message>
        <source>Files and folders that match these rules are not synced.</source>
        <translation>Bu kurallara uyan dosya ve klasörler eşitlenmez.</translation>
    </message>
    <message>
        <source>Removes Lumivo Drive from this computer. Your synced files are kept.</source>
        <translation>Lumivo Drive uygulamasını bu bilgisayardan kaldırır. Eşitlenen dosyalarınız korunur.</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Bağlantıları yönet</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Select a folder on another disk.</source>
        <translation>Bu diskte yeterli alan yok. Başka bir diskten klasör seçin.</translation>
    </message>
    <message>
        <source>File names to skip</source>
        <translation>Atlanacak dosya adları</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Perşembe</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Eşitlemeyi sürdür</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Son değiştirilen dosyalar</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Klasör</translation>
    </message>
    <message>
        <source>IP address, domain name or ZephLink ID</source>
        <translation>IP adresi, etki alanı adı veya ZephLink kimliği</translation>
    </message>
    <message>
        <source>Show Lumivo Drive in the context menu</source>
        <translation>Lumivo Drive uygulamasını bağlam menüsünde göster</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old. Update it on this computer.</source>
        <translation>Bu Lumivo Drive sürümü çok eski. Bu bilgisayarda güncelleyin.</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Select another folder.</source>
        <translation>Bu klasör eşitlenemez. Başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>İndirme iptal edildi.</translation>
    </message>
    <message>
        <source>Limit the number of downloads</source>
        <translation>İndirme sayısını sınırla</translation>
    </message>
    <message>
        <source>Show sync status icons on files</source>
        <translation>Dosyalarda eşitleme durumu simgelerini göster</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>Bu alan zorunludur.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Tanıtımı göster</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Başka bir sunucuyla eşleştir</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>Lisans sözleşmesinin koşullarını kabul etmiyorum</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Sürümler uyuşmuyor</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>İlk sayfa</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Yükle</translation>
    </message>
    <message>
        <source>Access denied</source>
        <translation>Erişim engellendi</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <translation>6 basamaklı doğrulama kodunu girin</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Anladım</translation>
    </message>
    <message>
        <source>The disk with the local sync folder is not connected. Connect it to continue syncing.</source>
        <translation>Yerel eşitleme klasörünün bulunduğu disk bağlı değil. Eşitlemeye devam etmek için diski bağlayın.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Bu iletiyi bir daha gösterme</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Şimdi başla</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>Yerel ağda ara</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Proxy’yi elle ayarla</translation>
    </message>
    <message>
        <source>You can open the files in this folder but not change them.</source>
        <translation>Bu klasördeki dosyaları açabilir ancak değiştiremezsiniz.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>Çok fazla başarısız deneme yapıldı. Birkaç dakika bekleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Eylül</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on your server.</source>
        <translation>Klasör boş değil. İçindeki dosyalar sunucunuzdaki dosyalarla birleştirilecek.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Geçen hafta</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>İndirme tamamlandı.</translation>
    </message>
    <message>
        <source>You can bring back a version that you overwrote or deleted.</source>
        <translation>Üzerine yazdığınız veya sildiğiniz bir sürümü geri getirebilirsiniz.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Pazar</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>Eşitleme klasörü</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>Güncelleme gerekli</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Paylaşım</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Salı</translation>
    </message>
    <message>
        <source>Start Lumivo Drive when you sign in</source>
        <translation>Oturum açtığımda Lumivo Drive uygulamasını başlat</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Paylaşılan klasörleri yönet</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>%1 dk. önce</translation>
    </message>
    <message>
        <source>This shared folder will no longer be synced. The files that are already on this computer will be kept.</source>
        <translation>Bu paylaşılan klasör artık eşitlenmeyecek. Bu bilgisayarda bulunan dosyalar korunur.</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>Atlanacak dosya uzantıları</translation>
    </message>
    <message>
        <source>Relay</source>
        <translation>Aktarma sunucusu</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Oturum açılamadı</translation>
    </message>
    <message>
        <source>Lumivo Drive has no features that can be chosen separately.</source>
        <translation>Lumivo Drive uygulamasında ayrı ayrı seçilebilen özellik yok.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Değer</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator. Lumivo Drive will be installed only for you.\nDo you want to continue?</source>
        <translation>Yönetici olarak oturum açmadınız. Lumivo Drive yalnızca sizin için yüklenecek.\nDevam etmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Links cannot be created because the file service is turned off. Ask your administrator to turn it on.</source>
        <translation>Dosya hizmeti kapalı olduğundan paylaşım bağlantısı oluşturulamıyor. Yöneticinizden hizmeti açmasını isteyin.</translation>
    </message>
    <message>
        <source>Close the applications and try to restart them afterward</source>
        <translation>Uygulamaları kapat ve sonra yeniden başlatmayı dene</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Lisans sözleşmesi</translation>
    </message>
    <message>
        <source>The folder could not be checked because of a system error. Try again later.</source>
        <translation>Klasör bir sistem hatası nedeniyle denetlenemedi. Daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is already installed. Do you want to install it again?</source>
        <translation>Lumivo Drive uygulamasının bu sürümü zaten yüklü. Yeniden yüklemek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Set a start date</source>
        <translation>Başlangıç tarihi belirle</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Yönet</translation>
    </message>
    <message>
        <source>This shared folder is not mounted on your server. Mount it there and try again.</source>
        <translation>Bu paylaşılan klasör sunucunuzda bağlı değil. Klasörü sunucuda bağlayıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Yerel ağ</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Tüm olaylar</translation>
    </message>
    <message>
        <source>Unlink this connection</source>
        <translation>Bu bağlantının eşleştirmesini kaldır</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>Bağlantı kararsız</translation>
    </message>
    <message>
        <source>This computer and your server now keep these folders in sync.\nYou can add more sync tasks at any time.</source>
        <translation>Bu bilgisayar ve sunucunuz artık bu klasörleri eşitlenmiş durumda tutuyor.\nDilediğiniz zaman başka eşitleme görevleri ekleyebilirsiniz.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Bu klasörü eşitleme dışında bırak</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed.\nContinue only if you know why.</source>
        <translation>Sunucunuzun sertifikası değişti.\nYalnızca nedenini biliyorsanız devam edin.</translation>
    </message>
    <message>
        <source>Maximum file size (MB)</source>
        <translation>En büyük dosya boyutu (MB)</translation>
    </message>
    <message>
        <source>Keep the version that was changed last</source>
        <translation>Son değiştirilen sürümü koru</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Yerel ağdaki sunucuları bulun</translation>
    </message>
    <message>
        <source>Your account is not allowed to sync this folder. Ask your administrator for permission.</source>
        <translation>Hesabınızın bu klasörü eşitleme izni yok. Yöneticinizden izin isteyin.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Klasörler</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Az önce</translation>
    </message>
    <message>
        <source>Setup is ready to repair Lumivo Drive.</source>
        <translation>Kurulum programı, Lumivo Drive uygulamasını onarmaya hazır.</translation>
    </message>
    <message>
        <source>You can only read this folder. Changes on this computer will not be uploaded.</source>
        <translation>Bu klasörü yalnızca okuyabilirsiniz. Bu bilgisayardaki değişiklikler karşıya yüklenmez.</translation>
    </message>
    <message>
        <source>You do not have access to this folder. Ask your administrator for permission.</source>
        <translation>Bu klasöre erişiminiz yok. Yöneticinizden izin isteyin.</translation>
    </message>
    <message>
        <source>No entries found</source>
        <translation>Kayıt bulunamadı</translation>
    </message>
    <message>
        <source>Your files are being synced. You can keep working in the meantime.</source>
        <translation>Dosyalarınız eşitleniyor. Bu sırada çalışmaya devam edebilirsiniz.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.\nContinue only if you trust this network.</source>
        <translation>Sunucunuzun sertifikası doğrulanamadı.\nYalnızca bu ağa güveniyorsanız devam edin.</translation>
    </message>
    <message>
        <source>Files left to sync: %1</source>
        <translation>Eşitlenecek dosya sayısı: %1</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive</source>
        <translation>Lumivo Drive uygulamasına hoş geldiniz</translation>
    </message>
    <message>
        <source>Set an end date</source>
        <translation>Bitiş tarihi belirle</translation>
    </message>
    <message>
        <source>The sync task could not be removed. Try again later.</source>
        <translation>Eşitleme görevi kaldırılamadı. Daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>Click the icon to see which files are being synced.</source>
        <translation>Hangi dosyaların eşitlendiğini görmek için simgeye tıklayın.</translation>
    </message>
    <message>
        <source>Your sync folder</source>
        <translation>Eşitleme klasörünüz</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Ask your administrator to install a valid one.</source>
        <translation>Sunucunuzun sertifikası doğrulanamadı. Yöneticinizden geçerli bir sertifika yüklemesini isteyin.</translation>
    </message>
    <message>
        <source>The server has been replaced. Link this computer again.</source>
        <translation>Sunucu değiştirilmiş. Bu bilgisayarı yeniden eşleştirin.</translation>
    </message>
    <message>
        <source>Follow these steps to link this computer to your server.</source>
        <translation>Bu bilgisayarı sunucunuzla eşleştirmek için aşağıdaki adımları izleyin.</translation>
    </message>
    <message>
        <source>Proxy server</source>
        <translation>Proxy sunucusu</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Bitti</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Güncellenen dosyalar</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Yine de devam et</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Son</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Ara</translation>
    </message>
    <message>
        <source>Icons on local files</source>
        <translation>Yerel dosyalardaki simgeler</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>Kullanılabilir eylem yok</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dosya adı</translation>
    </message>
    <message>
        <source>Syncing stopped</source>
        <translation>Eşitleme durdu</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Yerel eşitleme klasörü</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Devre dışı</translation>
    </message>
    <message>
        <source>Your server is still indexing &quot;%1&quot;. You can sync it when indexing is complete.</source>
        <translation>Sunucunuz “%1” klasörünü hâlâ dizinliyor. Dizinleme tamamlandığında klasörü eşitleyebilirsiniz.</translation>
    </message>
    <message>
        <source>When a file has been changed in two places</source>
        <translation>Bir dosya iki yerde değiştirildiğinde</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not empty.\nDo you want to use it anyway?</source>
        <translation>“%1” klasörü boş değil.\nYine de kullanmak istiyor musunuz?</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Klasörü değiştir</translation>
    </message>
    <message>
        <source>Sync your home folder using the recommended settings.</source>
        <translation>Ana klasörünüzü önerilen ayarları kullanarak eşitleyin.</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>Klasörler yükleniyor…</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Çarşamba</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>SSL şifrelemesi</translation>
    </message>
    <message>
        <source>Ready to install Lumivo Drive</source>
        <translation>Lumivo Drive yüklenmeye hazır</translation>
    </message>
    <message>
        <source>Run Setup again whenever you want to install Lumivo Drive.</source>
        <translation>Lumivo Drive uygulamasını yüklemek istediğinizde kurulum programını yeniden çalıştırın.</translation>
    </message>
    <message>
        <source>Your home folder on the server now syncs with this computer.</source>
        <translation>Sunucudaki ana klasörünüz artık bu bilgisayarla eşitleniyor.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Sunucuya genel bakış</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Duraklat</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Eşitlemeyi duraklat</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Cumartesi</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete some files to continue syncing.</source>
        <translation>Bu paylaşılan klasörün kotası doldu. Eşitlemeye devam etmek için bazı dosyaları silin.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Özet</translation>
    </message>
    <message>
        <source>Your new sync task</source>
        <translation>Yeni eşitleme göreviniz</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>İndirme geçmişi</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>İndiriliyor…</translation>
    </message>
    <message>
        <source>The new language takes effect the next time Lumivo Drive starts.</source>
        <translation>Yeni dil, Lumivo Drive yeniden başlatıldığında geçerli olur.</translation>
    </message>
    <message>
        <source>Installing Lumivo Drive</source>
        <translation>Lumivo Drive yükleniyor</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Masaüstü bildirimlerini göster</translation>
    </message>
    <message>
        <source>Quick setup suits most users. You can change everything later.</source>
        <translation>Hızlı kurulum çoğu kullanıcıya uygundur. Her şeyi daha sonra değiştirebilirsiniz.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full.</source>
        <translation>Sunucunuzun diski dolu.</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>Geçmişe dönün</translation>
    </message>
</context>
</TS>

// Turkish texts. Address: formal ("siz"); options and buttons in the short
// imperative. Titles, buttons and column heads in title case. Quotation marks
// “…”, apostrophe ’; no blank before "…"; a no-break space between a number
// and its unit.
//
// Glossary, used by every row:
//   site ......................... site
//   website ...................... web sitesi
//   local storage ................ yerel depolama
//   setting ...................... ayar
//   allow ........................ izin ver
//   block ........................ engelle
//   ask .......................... sor (11103: izin iste)
//   camera ....................... kamera
//   microphone ................... mikrofon
//   peer-assisted networking ..... eşler arası bağlantı
//   protected content ............ korumalı içerik
//   licence file ................. lisans dosyası
//   deauthorise .................. yetkisini kaldır
//   trusted location ............. güvenilir konum
//   plug-in ...................... eklenti
#pragma once

#include "strings/text_row.h"

namespace NCPStrings {

// clang-format off
inline constexpr TextRow kTurkishTexts[] = {
    // Buttons and common words
    {11000, "Tamam"},
    {11001, "İptal"},
    {11002, "Onayla"},
    {11003, "Kapat"},
    {11004, "Ekle"},
    {11005, "Ekle…"},
    {11006, "Tümünü Sil…"},
    {11007, "Verileri Sil"},
    {11008, "Yetkiyi Kaldır"},
    {11009, "Kaldır"},
    {11010, "Tümünü Kaldır…"},
    {11011, "Daha Fazla Bilgi"},
    {11012, "Dosya Ekle…"},
    {11013, "Klasör Ekle…"},
    {11014, "Tümünü Kaldır"},
    {11015, "Düzenle…"},
    // Permissions in the row of a site; 11103 is Ask as a choice
    {11100, "Engelle"},
    {11101, "Sor"},
    {11102, "İzin ver"},
    {11103, "Benden izin iste"},
    // Titles and the command line
    {11200, "Onay Gerekiyor"},
    {11400, "Tessary Corvane Player Tercihleri"},
    {11401, "Gösterilecek sayfanın adını belirt %s"},
    {11402, "sayfa"},
    // Files that could not be deleted
    {11500, "Dosyalar Silinemedi"},
    {11501, "Corvane Player, yerel depolamadaki tüm verileri silemedi. Dosyalar başka bir program tarafından kilitlenmiş olabilir. Tüm tarayıcıları kapatın ya da bilgisayarınızı yeniden başlatın ve tekrar deneyin."},
    {11502, "Corvane Player, tüm lisans dosyalarını silemedi. Dosyalar başka bir program tarafından kilitlenmiş olabilir. Tüm tarayıcıları kapatın ya da bilgisayarınızı yeniden başlatın ve tekrar deneyin."},
    // The panel's other name
    {12000, "Corvane Player Ayar Yöneticisi"},
    // Storage page
    {21000, "Depolama"},
    {21001, "Yerel Depolama Ayarları"},
    {21002, "Web siteleri, Corvane Player’ın bu bilgisayardaki kullanımıyla ilgili verileri (izleme geçmişi, oyun ilerlemesi, kaydedilmiş çalışmalar, tercihler veya bu bilgisayarı tanımlayan veriler gibi) kaydetmek için yerel depolamayı kullanabilir."},
    {21003, "Gizlilik denetimleri hakkında daha fazla bilgi"},
    {21004, "Sitelerin bu bilgisayara bilgi kaydetmesine izin ver"},
    {21005, "Yeni sitelerin bu bilgisayara bilgi kaydetmesine izin vermeden önce bana sor"},
    {21006, "Tüm sitelerin bu bilgisayara bilgi kaydetmesini engelle"},
    {21007, "Sitelere Göre Yerel Depolama Ayarları…"},
    // Disabling local storage; adding a local storage setting for a site
    {21100, "Yerel Depolamayı Devre Dışı Bırak"},
    {21101, "Tüm sitelerin bilgi kaydetmesini engellemek, bazı web sitelerinde kimi işlevlerin çalışmamasına neden olabilir. Bu işlem ayrıca daha önce ziyaret edilen sitelerin kaydettiği tüm verileri siler; bunlar arasında oyun ilerlemesi, oturum açma bilgileri, kaydedilmiş çalışmalar veya tercihler bulunabilir."},
    {21102, "Tüm sitelerin bilgi kaydetmesini engellemek, bazı web sitelerinde kimi işlevlerin çalışmamasına neden olabilir."},
    {21103, "Bu işlem ayrıca daha önce ziyaret edilen sitelerin kaydettiği tüm verileri siler; bunlar arasında oyun ilerlemesi, oturum açma bilgileri, kaydedilmiş çalışmalar veya tercihler bulunabilir."},
    {21104, "İsterseniz"},
    {21105, "veri veya geçmiş kaydetmeden internette geçici olarak gezinebilirsiniz."},
    {21106, "Gizlilik denetimleri hakkında daha fazla bilgi"},
    {21107, "Site İçin Yerel Depolama Ayarı Ekle"},
    {21108, "Bu site yerel depolamayı kullanmak istediğinde:"},
    {21109, "Sitenin bu bilgisayara bilgi kaydetmesine izin ver"},
    {21110, "Sitenin bu bilgisayara bilgi kaydetmesine izin vermeden önce bana sor"},
    {21111, "Sitenin bu bilgisayara bilgi kaydetmesini engelle"},
    // Space used by a site
    {21200, "yok"},
    {21201, "%d\u00A0bayt"},
    {21202, "%d\u00A0kB"},
    {21203, "%.2f\u00A0MB"},
    {21204, "%.2f\u00A0GB"},
    // Private browsing
    {21300, "Gizli Gezinti"},
    {21301, "İsterseniz yerel depolamaya veri kaydetmeden ve geçmiş tutmadan internette geçici olarak gezinebilirsiniz."},
    {21302, "Gizli gezinti hakkında daha fazla bilgi"},
    // Camera and Mic page, with radio buttons
    {31000, "Kamera ve Mikrofon"},
    {31001, "Kamera ve Mikrofon Ayarları"},
    {31002, "Bir site kamerayı veya mikrofonu kullanmak istediğinde bana sor (önerilir)"},
    {31003, "Tüm sitelerin kamerayı ve mikrofonu kullanmasını engelle"},
    {31004, "Sitelere Göre Kamera ve Mikrofon Ayarları…"},
    {31005, "Kamera ve mikrofon kullanımı her zaman engellenir. Diğer ayarları geçersiz kılan bu ayar rql.cfg dosyanızda yer alır ve sistem yöneticiniz tarafından belirlenmiş olabilir."},
    {31006, "Site İçin Kamera ve Mikrofon Ayarı Ekle"},
    {31007, "Bu site kamerayı veya mikrofonu kullanmak istediğinde:"},
    // Playback page: peer-assisted networking
    {41000, "Oynatma"},
    {41001, "Eşler Arası Bağlantı"},
    {41002, "Eşler arası bağlantı, medyanın daha akıcı oynatılmasını ve başka bilgisayarlara bağlanan sohbet gibi özelliklerin kullanılmasını sağlar. Ek bant genişliği kullanabilir."},
    {41003, "Eşler arası bağlantı hakkında daha fazla bilgi"},
    {41004, "Bir site eşler arası bağlantı kullanmak istediğinde bana sor"},
    {41005, "Tüm sitelerin eşler arası bağlantı kullanmasını engelle"},
    {41006, "Sitelere Göre Eşler Arası Bağlantı Ayarları…"},
    // Protected content
    {41100, "Korumalı İçerik"},
    {41101, "Bu bilgisayarı satıyor veya bağışlıyorsanız bilgisayarın yetkisini kaldırın; böylece Corvane Player, satın aldığınız filmler veya müzikler gibi daha önce görüntülenmiş korumalı içerikleri oynatamaz."},
    {41102, "Korumalı içerik hakkında daha fazla bilgi"},
    {41103, "Bu Bilgisayarın Yetkisini Kaldır…"},
    {41104, "Bu Bilgisayarın Yetkisini Kaldır"},
    {41105, "Yetkiyi kaldırdığınızda Corvane Player, kiraladığınız veya satın aldığınız filmler ve müzikler gibi korumalı içerikleri oynatamaz. Yetki kaldırıldıktan sonra Corvane Player’da korumalı içerik oynatmak için içerik sağlayıcılardan yeni lisanslar almanız gerekir."},
    {41106, "Bilgisayarınızın yetkisini kaldırmadan önce tüm tarayıcıları kapatın."},
    // Adding a peer-assisted networking setting for a site
    {41200, "Site İçin Eşler Arası Bağlantı Ayarı Ekle"},
    {41201, "Bu site eşler arası bağlantı kullanmak istediğinde:"},
    {41202, "Sitenin eşler arası bağlantı kullanmasına izin ver (önerilir)"},
    {41203, "Sitenin eşler arası bağlantı kullanmasına izin vermeden önce bana sor"},
    {41204, "Sitenin eşler arası bağlantı kullanmasını engelle"},
    // Advanced page: browsing data and updates
    {51000, "Gelişmiş"},
    {51100, "Gezinti Verileri ve Ayarlar"},
    {51101, "Bu bilgisayardaki tüm tarayıcılarda, Corvane Player’daki içeriklerin kullandığı tüm yerel depolama verilerini, kayıtlı seçimleri, ayarları ve diğer verileri siler."},
    {51200, "Güncellemeler"},
    {51201, "Corvane Player, bilgisayarınızı korumaya yardımcı olmak için güncellemeleri otomatik olarak denetleyebilir. Güncelleme yapılmaması, bu bilgisayarı güvenlik tehditlerine açık hale getirebilir."},
    {51202, "Mevcut güncellemeleri otomatik olarak yükle (önerilir)"},
    {51203, "Güncellemeleri hiçbir zaman denetleme (önerilmez)"},
    {51204, "Güncellemeler hiçbir zaman otomatik olarak denetlenmez. Diğer ayarları geçersiz kılan bu ayar rql.cfg dosyanızda yer alır ve sistem yöneticiniz tarafından belirlenmiş olabilir."},
    {51205, "Şimdi Denetle"},
    {51206, "Bilgisayarınızı korumaya yardımcı olmak ve Corvane Player’daki yeni geliştirmelerden yararlanmak için güncellemeleri denetleyin."},
    {51207, "Güncelleme Ayarlarını Değiştir"},
    {51208, "Güncelleme olduğunda bana bildir"},
    {51209, "Güncellemeleri otomatik olarak denetle (önerilir)"},
    // Installed version of the player
    {51300, "Bu bilgisayarda Tessary Corvane Player %s yüklü."},
    {51301, "Bu bilgisayarda yüklü olan Tessary Corvane Player sürümü belirlenemedi."},
    {51302, "Bu bilgisayarda Tessary Corvane Player yüklü değil."},
    // Developer tools
    {51400, "Geliştirici Araçları"},
    {51401, "Geliştirici testleri için güvenilir konumları belirtin."},
    {51402, "Güvenilir Konum Ayarları…"},
    // Versions of the plug-in
    {52000, "ActiveX Sürümü:"},
    {52001, "Eklenti Sürümü:"},
    {52002, "Yüklü değil"},
    {53000, "Eklentinin %s sürümü yüklü."},
    {53001, "Eklenti yüklü değil."},
    // Site lists: column heads, titles, explanations
    {61000, "Web Sitesi"},
    {61001, "Kamera ve Mikrofon Erişimi"},
    {61002, "Ağ Erişimi"},
    {61003, "Depolama Erişimi"},
    {61004, "Kullanılan Alan"},
    {61005, "Sitelere Göre Kamera ve Mikrofon Ayarları"},
    {61006, "Daha önce ziyaret edilen ve kamerayı veya mikrofonu kullanmak isteyen web siteleri aşağıda listelenmiştir. Belirli sitelerin kamerayı ve mikrofonu kullanmasına izin verebilir veya bunu engelleyebilirsiniz. Bir siteyi kaldırdığınızda o sitenin Corvane Player’daki tüm ayarları ve verileri silinir."},
    {61007, "Sitelere Göre Eşler Arası Bağlantı Ayarları"},
    {61008, "Daha önce ziyaret edilen ve eşler arası bağlantı kullanmak isteyen web siteleri aşağıda listelenmiştir. Belirli sitelerin eşler arası bağlantı kullanmasına izin verebilir veya bunu engelleyebilirsiniz. Bir siteyi kaldırdığınızda o sitenin Corvane Player’daki tüm ayarları ve verileri silinir."},
    {61009, "Sitelere Göre Yerel Depolama Ayarları"},
    {61010, "Daha önce ziyaret edilen ve yerel depolamayı kullanan web siteleri aşağıda listelenmiştir. Belirli sitelerin yerel depolamayı kullanmasına izin verebilir veya bunu engelleyebilirsiniz. Bir siteyi kaldırdığınızda o sitenin Corvane Player’daki tüm ayarları ve verileri silinir."},
    {61011, "Seçili site kamerayı veya mikrofonu kullanmak istediğinde:"},
    {61012, "Seçili site eşler arası bağlantı kullanmak istediğinde:"},
    {61013, "Seçili site yerel depolamayı kullanmak istediğinde:"},
    // Deleting all site data
    {71000, "Corvane Player’daki Tüm Site Verilerini Sil"},
    {71001, "Tüm tarayıcılarda aşağıdaki öğeleri sil:"},
    {71002, "Tüm site verilerini ve ayarlarını sil"},
    {71003, "Yerel depolama verilerini, kamera ve mikrofon ayarlarını ve eşler arası bağlantı ayarlarını siler. Web siteleri, Corvane Player’ın bu bilgisayardaki kullanımıyla ilgili verileri (izleme geçmişi, oyun ilerlemesi, kaydedilmiş çalışmalar, tercihler veya bu bilgisayarı tanımlayan veriler gibi) kaydetmek için yerel depolamayı kullanabilir. Önemli verileri korumak için “Depolama” sekmesinde yerel depolama verilerini site site kaldırabilirsiniz."},
    {71004, "Yerel depolama verilerini, kamera ve mikrofon ayarlarını ve eşler arası bağlantı ayarlarını siler."},
    {71005, "Web siteleri, Corvane Player’ın bu bilgisayardaki kullanımıyla ilgili verileri (izleme geçmişi, oyun ilerlemesi, kaydedilmiş çalışmalar, tercihler veya bu bilgisayarı tanımlayan veriler gibi) kaydetmek için yerel depolamayı kullanabilir."},
    {71006, "Önemli verileri korumak için “Depolama” sekmesinde yerel depolama verilerini site site kaldırabilirsiniz."},
    {71007, "Tüm ses ve video lisans dosyalarını sil"},
    {71008, "Corvane Player’ın, kiraladığınız veya satın aldığınız filmler ve müzikler gibi korumalı içerikleri oynatmasını önlemek için tüm lisans dosyalarını siler. Bu dosyaları silmeden önce tüm tarayıcıları kapatın."},
    {71009, "Gezinti geçmişinin tamamını temizlemek için tarayıcılarınızdaki geçmiş verilerini de temizleyin."},
    // Trusted locations
    {81000, "Güvenilir Konum Ayarları"},
    {81001, "Güvenlik nedeniyle Corvane Player, içeriklerin hem bu bilgisayardaki dosyalara hem de internete aynı anda erişmesini engeller. Geliştiriciler, güvenilir içerikler için aşağıya istisna ekleyebilir."},
    {81002, "Güvenilir konumlar hakkında daha fazla bilgi"},
    {81003, "Güvenilir Dosya veya Klasör"},
    {81004, "Lisans Dosyalarını Sıfırla"},
    {81005, "Sıfırla"},
    // Choosing trusted files and folders
    {82000, "KBX Dosyaları (*.kbx)"},
    {82001, "*.kbx"},
    {82002, "Konum"},
    {83000, "Güvenilir Klasör Seçin"},
    {83001, "Güvenilir Dosya Seçin"},
    // Editing a trusted location
    {84000, "Uyumluluk Konumunu Düzenle"},
    {84001, "Bu konuma güven ve Corvane Player\u00A07 ile uyumlu güvenlik ayarlarını kullanmasına izin ver:"},
    // Adding a site
    {91000, "Web Sitesi Alan Adı:"},
    {91001, "Örnek: www.example.com, example.com"},
    {92000, "Site Ekle"},
    {92001, "Site İçin Yerel Depolama Ayarı Ekle"},
    {92002, "Site İçin Kamera ve Mikrofon Ayarı Ekle"},
    {92003, "Site İçin Eşler Arası Bağlantı Ayarı Ekle"},
};
// clang-format on

}  // namespace NCPStrings

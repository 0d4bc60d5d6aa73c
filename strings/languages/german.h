// German texts. Address: formal ("Sie"). Quotation marks „…“. The ellipsis of
// buttons and the units of sizes follow a no-break space (\u00A0).
//
// Glossary, used by every row:
//   site ......................... Website
//   local storage ................ lokaler Speicher
//   setting ...................... Einstellung
//   allow ........................ zulassen
//   block ........................ blockieren
//   ask .......................... fragen
//   camera ....................... Kamera
//   microphone ................... Mikrofon
//   peer-assisted networking ..... Peer-gestützte Verbindungen
//   protected content ............ geschützte Inhalte
//   licence file ................. Lizenzdatei
//   deauthorise .................. Autorisierung aufheben
//   trusted location ............. vertrauenswürdiger Speicherort
//   plug-in ...................... Plug-in
#pragma once

#include "strings/text_row.h"

namespace NCPStrings {

// clang-format off
inline constexpr TextRow kGermanTexts[] = {
    // Buttons and common words
    {11000, "OK"},
    {11001, "Abbrechen"},
    {11002, "Bestätigen"},
    {11003, "Schließen"},
    {11004, "Hinzufügen"},
    {11005, "Hinzufügen\u00A0…"},
    {11006, "Alles löschen\u00A0…"},
    {11007, "Daten löschen"},
    {11008, "Autorisierung aufheben"},
    {11009, "Entfernen"},
    {11010, "Alle entfernen\u00A0…"},
    {11011, "Weitere Informationen"},
    {11012, "Datei hinzufügen\u00A0…"},
    {11013, "Ordner hinzufügen\u00A0…"},
    {11014, "Alle entfernen"},
    {11015, "Bearbeiten\u00A0…"},
    // Permissions in the row of a site; 11103 is Ask as a choice
    {11100, "Blockieren"},
    {11101, "Fragen"},
    {11102, "Zulassen"},
    {11103, "Um Erlaubnis fragen"},
    // Titles and the command line
    {11200, "Bestätigung erforderlich"},
    {11400, "Einstellungen für Tessary Corvane Player"},
    {11401, "Name der anzuzeigenden Seite %s"},
    {11402, "Seite"},
    // Files that could not be deleted
    {11500, "Dateien konnten nicht gelöscht werden"},
    {11501, "Corvane Player konnte den lokalen Speicher nicht vollständig löschen. Möglicherweise sind die Dateien durch ein anderes Programm gesperrt. Schließen Sie alle Browser oder starten Sie den Computer neu und versuchen Sie es dann noch einmal."},
    {11502, "Corvane Player konnte nicht alle Lizenzdateien löschen. Möglicherweise sind sie durch ein anderes Programm gesperrt. Schließen Sie alle Browser oder starten Sie den Computer neu und versuchen Sie es dann noch einmal."},
    // The panel's other name
    {12000, "Einstellungsmanager für Corvane Player"},
    // Storage page
    {21000, "Speicher"},
    {21001, "Einstellungen für lokalen Speicher"},
    {21002, "Websites können im lokalen Speicher Daten zur Nutzung von Corvane Player auf diesem Computer ablegen, zum Beispiel den Wiedergabeverlauf, Spielstände, gespeicherte Arbeitsstände, Einstellungen oder Daten, die diesen Computer identifizieren."},
    {21003, "Weitere Informationen zu Datenschutzeinstellungen"},
    {21004, "Zulassen, dass Websites Informationen auf diesem Computer speichern"},
    {21005, "Fragen, bevor neue Websites Informationen auf diesem Computer speichern dürfen"},
    {21006, "Speichern von Informationen auf diesem Computer für alle Websites blockieren"},
    {21007, "Website-Einstellungen für lokalen Speicher\u00A0…"},
    // Disabling local storage; adding a local storage setting for a site
    {21100, "Lokalen Speicher deaktivieren"},
    {21101, "Wenn Sie das Speichern von Informationen für alle Websites blockieren, stehen auf manchen Websites möglicherweise nicht alle Funktionen zur Verfügung. Außerdem werden alle Daten gelöscht, die zuvor besuchte Websites gespeichert haben. Dazu können Spielstände, Anmeldedaten, gespeicherte Arbeitsstände oder Einstellungen gehören."},
    {21102, "Wenn Sie das Speichern von Informationen für alle Websites blockieren, stehen auf manchen Websites möglicherweise nicht alle Funktionen zur Verfügung."},
    {21103, "Außerdem werden alle Daten gelöscht, die zuvor besuchte Websites gespeichert haben. Dazu können Spielstände, Anmeldedaten, gespeicherte Arbeitsstände oder Einstellungen gehören."},
    {21104, "Bei Bedarf können Sie"},
    {21105, "vorübergehend surfen, ohne Daten oder den Verlauf zu speichern."},
    {21106, "Weitere Informationen zu Datenschutzeinstellungen"},
    {21107, "Website-Einstellung für lokalen Speicher hinzufügen"},
    {21108, "Wenn diese Website lokalen Speicher verwenden möchte:"},
    {21109, "Zulassen, dass die Website Informationen auf diesem Computer speichert"},
    {21110, "Fragen, bevor die Website Informationen auf diesem Computer speichern darf"},
    {21111, "Speichern von Informationen auf diesem Computer für die Website blockieren"},
    // Space used by a site
    {21200, "keiner"},
    {21201, "%d\u00A0Bytes"},
    {21202, "%d\u00A0kB"},
    {21203, "%.2f\u00A0MB"},
    {21204, "%.2f\u00A0GB"},
    // Private browsing
    {21300, "Privates Surfen"},
    {21301, "Bei Bedarf können Sie vorübergehend surfen, ohne Daten im lokalen Speicher oder im Verlauf zu speichern."},
    {21302, "Weitere Informationen zum privaten Surfen"},
    // Camera and Mic page, with radio buttons
    {31000, "Kamera und Mikrofon"},
    {31001, "Kamera- und Mikrofoneinstellungen"},
    {31002, "Fragen, wenn eine Website die Kamera oder das Mikrofon verwenden möchte (empfohlen)"},
    {31003, "Verwendung von Kamera und Mikrofon für alle Websites blockieren"},
    {31004, "Website-Einstellungen für Kamera und Mikrofon\u00A0…"},
    {31005, "Die Verwendung von Kamera und Mikrofon ist immer blockiert. Dies ist in Ihrer Datei rql.cfg fest vorgegeben, möglicherweise durch Ihren Systemadministrator."},
    {31006, "Website-Einstellung für Kamera und Mikrofon hinzufügen"},
    {31007, "Wenn diese Website eine Kamera oder ein Mikrofon verwenden möchte:"},
    // Playback page: peer-assisted networking
    {41000, "Wiedergabe"},
    {41001, "Peer-gestützte Verbindungen"},
    {41002, "Peer-gestützte Verbindungen sorgen für eine flüssigere Medienwiedergabe und ermöglichen Funktionen wie Chats, die Verbindungen zu anderen Computern herstellen. Dabei wird unter Umständen zusätzliche Bandbreite beansprucht."},
    {41003, "Weitere Informationen zu Peer-gestützten Verbindungen"},
    {41004, "Fragen, wenn eine Website Peer-gestützte Verbindungen verwenden möchte"},
    {41005, "Peer-gestützte Verbindungen für alle Websites blockieren"},
    {41006, "Website-Einstellungen für Peer-gestützte Verbindungen\u00A0…"},
    // Protected content
    {41100, "Geschützte Inhalte"},
    {41101, "Wenn Sie diesen Computer verkaufen oder verschenken, heben Sie zuvor seine Autorisierung auf. Corvane Player kann dann bereits wiedergegebene geschützte Inhalte, zum Beispiel von Ihnen gekaufte Filme oder Musik, nicht mehr abspielen."},
    {41102, "Weitere Informationen zu geschützten Inhalten"},
    {41103, "Autorisierung dieses Computers aufheben\u00A0…"},
    {41104, "Autorisierung dieses Computers aufheben"},
    {41105, "Wenn Sie die Autorisierung aufheben, kann Corvane Player geschützte Inhalte wie von Ihnen geliehene oder gekaufte Filme und Musik nicht mehr abspielen. Um danach wieder geschützte Inhalte in Corvane Player abspielen zu können, benötigen Sie neue Lizenzen von den Inhaltsanbietern."},
    {41106, "Schließen Sie alle Browser, bevor Sie die Autorisierung Ihres Computers aufheben."},
    // Adding a peer-assisted networking setting for a site
    {41200, "Website-Einstellung für Peer-gestützte Verbindungen hinzufügen"},
    {41201, "Wenn diese Website Peer-gestützte Verbindungen verwenden möchte:"},
    {41202, "Peer-gestützte Verbindungen für die Website zulassen (empfohlen)"},
    {41203, "Fragen, bevor die Website Peer-gestützte Verbindungen verwenden darf"},
    {41204, "Peer-gestützte Verbindungen für die Website blockieren"},
    // Advanced page: browsing data and updates
    {51000, "Erweitert"},
    {51100, "Browserdaten und Einstellungen"},
    {51101, "Löschen Sie den gesamten lokalen Speicher, gespeicherte Entscheidungen, Einstellungen und andere Daten, die Inhalte in Corvane Player in allen Browsern auf diesem Computer verwenden."},
    {51200, "Updates"},
    {51201, "Corvane Player kann automatisch nach Updates suchen, um zum Schutz Ihres Computers beizutragen. Ohne Updates ist dieser Computer möglicherweise anfällig für Sicherheitsbedrohungen."},
    {51202, "Verfügbare Updates automatisch installieren (empfohlen)"},
    {51203, "Nie nach Updates suchen (nicht empfohlen)"},
    {51204, "Es wird nie automatisch nach Updates gesucht. Dies ist in Ihrer Datei rql.cfg fest vorgegeben, möglicherweise durch Ihren Systemadministrator."},
    {51205, "Jetzt suchen"},
    {51206, "Suchen Sie nach Updates, um Ihren Computer besser zu schützen und von neuen Verbesserungen in Corvane Player zu profitieren."},
    {51207, "Update-Einstellungen ändern"},
    {51208, "Benachrichtigen, wenn Updates verfügbar sind"},
    {51209, "Automatisch nach Updates suchen (empfohlen)"},
    // Installed version of the player
    {51300, "Tessary Corvane Player %s ist auf diesem Computer installiert."},
    {51301, "Die auf diesem Computer installierte Version von Tessary Corvane Player konnte nicht ermittelt werden."},
    {51302, "Tessary Corvane Player ist auf diesem Computer nicht installiert."},
    // Developer tools
    {51400, "Entwicklerwerkzeuge"},
    {51401, "Legen Sie vertrauenswürdige Speicherorte für Entwicklertests fest."},
    {51402, "Einstellungen für vertrauenswürdige Speicherorte\u00A0…"},
    // Versions of the plug-in
    {52000, "ActiveX-Version:"},
    {52001, "Plug-in-Version:"},
    {52002, "Nicht installiert"},
    {53000, "Plug-in-Version %s ist installiert."},
    {53001, "Das Plug-in ist nicht installiert."},
    // Site lists: column heads, titles, explanations
    {61000, "Website"},
    {61001, "Kamera- und Mikrofonzugriff"},
    {61002, "Netzwerkzugriff"},
    {61003, "Speicherzugriff"},
    {61004, "Belegter Speicher"},
    {61005, "Website-Einstellungen für Kamera und Mikrofon"},
    {61006, "Nachfolgend sind zuvor besuchte Websites aufgeführt, die Zugriff auf die Kamera oder das Mikrofon angefordert haben. Sie können die Verwendung von Kamera und Mikrofon für bestimmte Websites zulassen oder blockieren. Wenn Sie eine Website entfernen, werden alle Einstellungen und Daten dieser Website in Corvane Player gelöscht."},
    {61007, "Website-Einstellungen für Peer-gestützte Verbindungen"},
    {61008, "Nachfolgend sind zuvor besuchte Websites aufgeführt, die Peer-gestützte Verbindungen angefordert haben. Sie können die Verwendung Peer-gestützter Verbindungen für bestimmte Websites zulassen oder blockieren. Wenn Sie eine Website entfernen, werden alle Einstellungen und Daten dieser Website in Corvane Player gelöscht."},
    {61009, "Website-Einstellungen für lokalen Speicher"},
    {61010, "Nachfolgend sind zuvor besuchte Websites aufgeführt, die lokalen Speicher verwenden. Sie können die Verwendung des lokalen Speichers für bestimmte Websites zulassen oder blockieren. Wenn Sie eine Website entfernen, werden alle Einstellungen und Daten dieser Website in Corvane Player gelöscht."},
    {61011, "Wenn die ausgewählte Website eine Kamera oder ein Mikrofon verwenden möchte:"},
    {61012, "Wenn die ausgewählte Website Peer-gestützte Verbindungen verwenden möchte:"},
    {61013, "Wenn die ausgewählte Website lokalen Speicher verwenden möchte:"},
    // Deleting all site data
    {71000, "Alle Website-Daten in Corvane Player löschen"},
    {71001, "Folgende Elemente in allen Browsern löschen:"},
    {71002, "Alle Website-Daten und -Einstellungen löschen"},
    {71003, "Löscht den lokalen Speicher, die Kamera- und Mikrofoneinstellungen sowie die Einstellungen für Peer-gestützte Verbindungen. Websites können im lokalen Speicher Daten zur Nutzung von Corvane Player auf diesem Computer ablegen, zum Beispiel den Wiedergabeverlauf, Spielstände, gespeicherte Arbeitsstände, Einstellungen oder Daten, die diesen Computer identifizieren. Um wichtige Daten zu behalten, können Sie auf der Registerkarte „Speicher“ den lokalen Speicher einzelner Websites löschen."},
    {71004, "Löscht den lokalen Speicher, die Kamera- und Mikrofoneinstellungen sowie die Einstellungen für Peer-gestützte Verbindungen."},
    {71005, "Websites können im lokalen Speicher Daten zur Nutzung von Corvane Player auf diesem Computer ablegen, zum Beispiel den Wiedergabeverlauf, Spielstände, gespeicherte Arbeitsstände, Einstellungen oder Daten, die diesen Computer identifizieren."},
    {71006, "Um wichtige Daten zu behalten, können Sie auf der Registerkarte „Speicher“ den lokalen Speicher einzelner Websites löschen."},
    {71007, "Alle Audio- und Videolizenzdateien löschen"},
    {71008, "Löscht alle Lizenzdateien, sodass Corvane Player geschützte Inhalte wie von Ihnen geliehene oder gekaufte Filme und Musik nicht mehr abspielen kann. Schließen Sie alle Browser, bevor Sie diese Dateien löschen."},
    {71009, "Um den gesamten Browserverlauf zu löschen, löschen Sie auch die Verlaufsdaten in Ihren Browsern."},
    // Trusted locations
    {81000, "Einstellungen für vertrauenswürdige Speicherorte"},
    {81001, "Aus Sicherheitsgründen verhindert Corvane Player, dass Inhalte zugleich auf Dateien auf diesem Computer und auf das Internet zugreifen. Entwickler können unten Ausnahmen für vertrauenswürdige Inhalte hinzufügen."},
    {81002, "Weitere Informationen zu vertrauenswürdigen Speicherorten"},
    {81003, "Vertrauenswürdige Dateien und Ordner"},
    {81004, "Lizenzdateien zurücksetzen"},
    {81005, "Zurücksetzen"},
    // Choosing trusted files and folders
    {82000, "KBX-Dateien (*.kbx)"},
    {82001, "*.kbx"},
    {82002, "Speicherort"},
    {83000, "Vertrauenswürdigen Ordner auswählen"},
    {83001, "Vertrauenswürdige Datei auswählen"},
    // Editing a trusted location
    {84000, "Speicherort für Kompatibilität bearbeiten"},
    {84001, "Diesem Speicherort vertrauen und dafür Sicherheitseinstellungen zulassen, die mit Corvane Player\u00A07 kompatibel sind:"},
    // Adding a site
    {91000, "Domain der Website:"},
    {91001, "Beispiel: www.example.com, example.com"},
    {92000, "Website hinzufügen"},
    {92001, "Website-Einstellung für lokalen Speicher hinzufügen"},
    {92002, "Website-Einstellung für Kamera und Mikrofon hinzufügen"},
    {92003, "Website-Einstellung für Peer-gestützte Verbindungen hinzufügen"},
};
// clang-format on

}  // namespace NCPStrings

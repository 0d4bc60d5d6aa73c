// Polish texts. Address: impersonal ("można", "należy"); options and buttons in
// the imperative. Quotation marks „…”; no blank before "…"; a no-break space
// between a number and its unit, and after a word of one
// letter in texts that are broken into lines.
//
// Glossary, used by every row:
//   site ......................... witryna
//   website ...................... witryna
//   local storage ................ pamięć lokalna
//   setting ...................... ustawienie
//   allow ........................ zezwalać (zezwolić)
//   block ........................ blokować
//   ask .......................... pytać
//   camera ....................... kamera
//   microphone ................... mikrofon
//   peer-assisted networking ..... połączenia peer-to-peer
//   protected content ............ treści chronione
//   licence file ................. plik licencji
//   deauthorise .................. cofnąć autoryzację
//   trusted location ............. zaufana lokalizacja
//   plug-in ...................... wtyczka
#pragma once

#include "strings/text_row.h"

namespace NCPStrings {

// clang-format off
inline constexpr TextRow kPolishTexts[] = {
    // Buttons and common words
    {11000, "OK"},
    {11001, "Anuluj"},
    {11002, "Potwierdź"},
    {11003, "Zamknij"},
    {11004, "Dodaj"},
    {11005, "Dodaj…"},
    {11006, "Usuń wszystko…"},
    {11007, "Usuń dane"},
    {11008, "Cofnij autoryzację"},
    {11009, "Usuń"},
    {11010, "Usuń wszystkie…"},
    {11011, "Więcej informacji"},
    {11012, "Dodaj plik…"},
    {11013, "Dodaj katalog…"},
    {11014, "Usuń wszystkie"},
    {11015, "Edytuj…"},
    // Permissions in the row of a site; 11103 is Ask as a choice
    {11100, "Blokuj"},
    {11101, "Pytaj"},
    {11102, "Zezwalaj"},
    {11103, "Pytaj o pozwolenie"},
    // Titles and the command line
    {11200, "Wymagane potwierdzenie"},
    {11400, "Preferencje programu Tessary Corvane Player"},
    {11401, "Określa nazwę strony do wyświetlenia %s"},
    {11402, "strona"},
    // Files that could not be deleted
    {11500, "Nie można usunąć plików"},
    {11501, "Program Corvane Player nie mógł usunąć całej zawartości pamięci lokalnej. Pliki mogą być zablokowane przez inny program. Należy zamknąć wszystkie przeglądarki lub ponownie uruchomić komputer i\u00A0spróbować jeszcze raz."},
    {11502, "Program Corvane Player nie mógł usunąć wszystkich plików licencji. Mogą one być zablokowane przez inny program. Należy zamknąć wszystkie przeglądarki lub ponownie uruchomić komputer i\u00A0spróbować jeszcze raz."},
    // The panel's other name
    {12000, "Menedżer ustawień programu Corvane Player"},
    // Storage page
    {21000, "Pamięć lokalna"},
    {21001, "Ustawienia pamięci lokalnej"},
    {21002, "Witryny mogą używać pamięci lokalnej do zapisywania danych o\u00A0korzystaniu z\u00A0programu Corvane Player na tym komputerze, takich jak historia oglądania, postępy w\u00A0grach, zapisane wyniki pracy, preferencje lub dane identyfikujące ten komputer."},
    {21003, "Więcej informacji o opcjach prywatności"},
    {21004, "Zezwalaj witrynom na zapisywanie informacji na tym komputerze"},
    {21005, "Pytaj przed zezwoleniem nowym witrynom na zapisywanie informacji na tym komputerze"},
    {21006, "Blokuj wszystkim witrynom zapisywanie informacji na tym komputerze"},
    {21007, "Ustawienia pamięci lokalnej dla witryn…"},
    // Disabling local storage; adding a local storage setting for a site
    {21100, "Wyłącz pamięć lokalną"},
    {21101, "Zablokowanie wszystkim witrynom zapisywania informacji może spowodować, że w\u00A0niektórych witrynach część funkcji przestanie działać. Spowoduje to także usunięcie wszystkich danych zapisanych przez wcześniej odwiedzone witryny, na przykład postępów w\u00A0grach, danych logowania, zapisanych wyników pracy lub preferencji."},
    {21102, "Zablokowanie wszystkim witrynom zapisywania informacji może spowodować, że w niektórych witrynach część funkcji przestanie działać."},
    {21103, "Spowoduje to także usunięcie wszystkich danych zapisanych przez wcześniej odwiedzone witryny, na przykład postępów w grach, danych logowania, zapisanych wyników pracy lub preferencji."},
    {21104, "Można też"},
    {21105, "tymczasowo przeglądać internet bez zapisywania danych i historii."},
    {21106, "Więcej informacji o opcjach prywatności"},
    {21107, "Dodawanie ustawienia pamięci lokalnej dla witryny"},
    {21108, "Gdy ta witryna chce korzystać z pamięci lokalnej:"},
    {21109, "Zezwalaj witrynie na zapisywanie informacji na tym komputerze"},
    {21110, "Pytaj przed zezwoleniem witrynie na zapisywanie informacji na tym komputerze"},
    {21111, "Blokuj witrynie zapisywanie informacji na tym komputerze"},
    // Space used by a site
    {21200, "brak"},
    {21201, "%d\u00A0B"},
    {21202, "%d\u00A0kB"},
    {21203, "%.2f\u00A0MB"},
    {21204, "%.2f\u00A0GB"},
    // Private browsing
    {21300, "Tryb prywatny"},
    {21301, "Można tymczasowo przeglądać internet bez zapisywania historii i\u00A0danych w\u00A0pamięci lokalnej."},
    {21302, "Więcej informacji o trybie prywatnym"},
    // Camera and Mic page, with radio buttons
    {31000, "Kamera i mikrofon"},
    {31001, "Ustawienia kamery i mikrofonu"},
    {31002, "Pytaj, gdy witryna chce korzystać z kamery lub mikrofonu (zalecane)"},
    {31003, "Blokuj wszystkim witrynom korzystanie z kamery i mikrofonu"},
    {31004, "Ustawienia kamery i mikrofonu dla witryn…"},
    {31005, "Korzystanie z kamery i mikrofonu jest zawsze blokowane. To nadrzędne ustawienie pochodzi z pliku rql.cfg i mogło zostać wprowadzone przez administratora systemu."},
    {31006, "Dodawanie ustawienia kamery i mikrofonu dla witryny"},
    {31007, "Gdy ta witryna chce korzystać z kamery lub mikrofonu:"},
    // Playback page: peer-assisted networking
    {41000, "Odtwarzanie"},
    {41001, "Połączenia peer-to-peer"},
    {41002, "Połączenia peer-to-peer umożliwiają płynniejsze odtwarzanie multimediów oraz działanie funkcji łączących się z\u00A0innymi komputerami, takich jak czat. Mogą one dodatkowo obciążać łącze internetowe."},
    {41003, "Więcej informacji o połączeniach peer-to-peer"},
    {41004, "Pytaj, gdy witryna chce korzystać z połączeń peer-to-peer"},
    {41005, "Blokuj wszystkim witrynom korzystanie z połączeń peer-to-peer"},
    {41006, "Ustawienia połączeń peer-to-peer dla witryn…"},
    // Protected content
    {41100, "Treści chronione"},
    {41101, "W\u00A0razie sprzedaży lub podarowania tego komputera należy cofnąć jego autoryzację, aby uniemożliwić programowi Corvane Player odtwarzanie wcześniej oglądanych treści chronionych, takich jak zakupione filmy lub muzyka."},
    {41102, "Więcej informacji o treściach chronionych"},
    {41103, "Cofnij autoryzację tego komputera…"},
    {41104, "Cofnij autoryzację tego komputera"},
    {41105, "Cofnięcie autoryzacji uniemożliwia programowi Corvane Player odtwarzanie treści chronionych, takich jak wypożyczone lub zakupione filmy i\u00A0muzyka. Aby po cofnięciu autoryzacji odtwarzać treści chronione w\u00A0programie Corvane Player, trzeba będzie uzyskać nowe licencje od dostawców treści."},
    {41106, "Przed cofnięciem autoryzacji komputera należy zamknąć wszystkie przeglądarki."},
    // Adding a peer-assisted networking setting for a site
    {41200, "Dodawanie ustawienia połączeń peer-to-peer dla witryny"},
    {41201, "Gdy ta witryna chce korzystać z połączeń peer-to-peer:"},
    {41202, "Zezwalaj witrynie na korzystanie z połączeń peer-to-peer (zalecane)"},
    {41203, "Pytaj przed zezwoleniem witrynie na korzystanie z połączeń peer-to-peer"},
    {41204, "Blokuj witrynie korzystanie z połączeń peer-to-peer"},
    // Advanced page: browsing data and updates
    {51000, "Zaawansowane"},
    {51100, "Dane przeglądania i ustawienia"},
    {51101, "Usuwa całą zawartość pamięci lokalnej, zapamiętane wybory, ustawienia i\u00A0inne dane używane przez treści w\u00A0programie Corvane Player we wszystkich przeglądarkach na tym komputerze."},
    {51200, "Aktualizacje"},
    {51201, "Program Corvane Player może automatycznie sprawdzać dostępność aktualizacji, które pomagają chronić komputer. Brak aktualizacji może narazić ten komputer na zagrożenia bezpieczeństwa."},
    {51202, "Instaluj dostępne aktualizacje automatycznie (zalecane)"},
    {51203, "Nigdy nie sprawdzaj dostępności aktualizacji (niezalecane)"},
    {51204, "Dostępność aktualizacji nigdy nie jest sprawdzana automatycznie. To nadrzędne ustawienie pochodzi z pliku rql.cfg i mogło zostać wprowadzone przez administratora systemu."},
    {51205, "Sprawdź teraz"},
    {51206, "Sprawdzanie dostępności aktualizacji pomaga chronić komputer i\u00A0pozwala korzystać z\u00A0nowych ulepszeń programu Corvane Player."},
    {51207, "Zmień ustawienia aktualizacji"},
    {51208, "Powiadamiaj o dostępnych aktualizacjach"},
    {51209, "Automatycznie sprawdzaj dostępność aktualizacji (zalecane)"},
    // Installed version of the player
    {51300, "Na tym komputerze jest zainstalowany program Tessary Corvane Player %s."},
    {51301, "Nie można określić wersji programu Tessary Corvane Player zainstalowanego na tym komputerze."},
    {51302, "Program Tessary Corvane Player nie jest zainstalowany na tym komputerze."},
    // Developer tools
    {51400, "Narzędzia dla programistów"},
    {51401, "Określanie zaufanych lokalizacji na potrzeby testów programistycznych."},
    {51402, "Ustawienia zaufanych lokalizacji…"},
    // Versions of the plug-in
    {52000, "Wersja ActiveX:"},
    {52001, "Wersja wtyczki:"},
    {52002, "Nie zainstalowano"},
    {53000, "Zainstalowana jest wtyczka w wersji %s."},
    {53001, "Wtyczka nie jest zainstalowana."},
    // Site lists: column heads, titles, explanations
    {61000, "Witryna"},
    {61001, "Dostęp do kamery i mikrofonu"},
    {61002, "Dostęp do sieci"},
    {61003, "Dostęp do pamięci lokalnej"},
    {61004, "Zajęte miejsce"},
    {61005, "Ustawienia kamery i mikrofonu dla witryn"},
    {61006, "Poniżej znajduje się lista wcześniej odwiedzonych witryn, które poprosiły o\u00A0dostęp do kamery lub mikrofonu. Poszczególnym witrynom można zezwolić na korzystanie z\u00A0kamery i\u00A0mikrofonu lub zablokować tę możliwość. Usunięcie witryny powoduje usunięcie wszystkich jej ustawień i\u00A0danych w\u00A0programie Corvane Player."},
    {61007, "Ustawienia połączeń peer-to-peer dla witryn"},
    {61008, "Poniżej znajduje się lista wcześniej odwiedzonych witryn, które poprosiły o\u00A0możliwość korzystania z\u00A0połączeń peer-to-peer. Poszczególnym witrynom można zezwolić na korzystanie z\u00A0połączeń peer-to-peer lub zablokować tę możliwość. Usunięcie witryny powoduje usunięcie wszystkich jej ustawień i\u00A0danych w\u00A0programie Corvane Player."},
    {61009, "Ustawienia pamięci lokalnej dla witryn"},
    {61010, "Poniżej znajduje się lista wcześniej odwiedzonych witryn, które korzystają z\u00A0pamięci lokalnej. Poszczególnym witrynom można zezwolić na korzystanie z\u00A0pamięci lokalnej lub zablokować tę możliwość. Usunięcie witryny powoduje usunięcie wszystkich jej ustawień i\u00A0danych w\u00A0programie Corvane Player."},
    {61011, "Gdy zaznaczona witryna chce korzystać z kamery lub mikrofonu:"},
    {61012, "Gdy zaznaczona witryna chce korzystać z połączeń peer-to-peer:"},
    {61013, "Gdy zaznaczona witryna chce korzystać z pamięci lokalnej:"},
    // Deleting all site data
    {71000, "Usuwanie wszystkich danych witryn w programie Corvane Player"},
    {71001, "Usuń następujące elementy we wszystkich przeglądarkach:"},
    {71002, "Usuń wszystkie dane i ustawienia witryn"},
    {71003, "Usuwa zawartość pamięci lokalnej, ustawienia kamery i\u00A0mikrofonu oraz ustawienia połączeń peer-to-peer. Witryny mogą używać pamięci lokalnej do zapisywania danych o\u00A0korzystaniu z\u00A0programu Corvane Player na tym komputerze, takich jak historia oglądania, postępy w\u00A0grach, zapisane wyniki pracy, preferencje lub dane identyfikujące ten komputer. Aby zachować ważne dane, można usuwać zawartość pamięci lokalnej poszczególnych witryn na karcie „Pamięć lokalna”."},
    {71004, "Usuwa zawartość pamięci lokalnej, ustawienia kamery i mikrofonu oraz ustawienia połączeń peer-to-peer."},
    {71005, "Witryny mogą używać pamięci lokalnej do zapisywania danych o korzystaniu z programu Corvane Player na tym komputerze, takich jak historia oglądania, postępy w grach, zapisane wyniki pracy, preferencje lub dane identyfikujące ten komputer."},
    {71006, "Aby zachować ważne dane, można usuwać zawartość pamięci lokalnej poszczególnych witryn na karcie „Pamięć lokalna”."},
    {71007, "Usuń wszystkie pliki licencji audio i wideo"},
    {71008, "Usuwa wszystkie pliki licencji, aby uniemożliwić programowi Corvane Player odtwarzanie treści chronionych, takich jak wypożyczone lub zakupione filmy i\u00A0muzyka. Przed usunięciem tych plików należy zamknąć wszystkie przeglądarki."},
    {71009, "Aby wyczyścić całą historię przeglądania, należy także wyczyścić historię w\u00A0przeglądarkach."},
    // Trusted locations
    {81000, "Ustawienia zaufanych lokalizacji"},
    {81001, "Ze względów bezpieczeństwa program Corvane Player blokuje treściom jednoczesny dostęp do plików na tym komputerze i\u00A0do internetu. Programiści mogą poniżej dodać wyjątki dla zaufanych treści."},
    {81002, "Więcej informacji o zaufanych lokalizacjach"},
    {81003, "Zaufany plik lub katalog"},
    {81004, "Zresetuj pliki licencji"},
    {81005, "Zresetuj"},
    // Choosing trusted files and folders
    {82000, "Pliki KBX (*.kbx)"},
    {82001, "*.kbx"},
    {82002, "Lokalizacja"},
    {83000, "Wybór zaufanego katalogu"},
    {83001, "Wybór zaufanego pliku"},
    // Editing a trusted location
    {84000, "Edytowanie lokalizacji dla trybu zgodności"},
    {84001, "Zaufaj tej lokalizacji i\u00A0zezwól jej na używanie ustawień zabezpieczeń zgodnych z\u00A0programem Corvane Player\u00A07:"},
    // Adding a site
    {91000, "Domena witryny:"},
    {91001, "Przykład: www.example.com, example.com"},
    {92000, "Dodawanie witryny"},
    {92001, "Dodawanie ustawienia pamięci lokalnej dla witryny"},
    {92002, "Dodawanie ustawienia kamery i mikrofonu dla witryny"},
    {92003, "Dodawanie ustawienia połączeń peer-to-peer dla witryny"},
};
// clang-format on

}  // namespace NCPStrings

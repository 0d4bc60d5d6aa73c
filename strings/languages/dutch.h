// Dutch texts. Address: formal ("u"). Quotation marks ‘…’, apostrophe ’. The
// ellipsis follows its word directly; the units of sizes follow a no-break
// space (\u00A0).
//
// Glossary, used by every row:
//   site ......................... website
//   local storage ................ lokale opslag
//   setting ...................... instelling
//   allow ........................ toestaan
//   block ........................ blokkeren
//   ask .......................... vragen
//   camera ....................... camera
//   microphone ................... microfoon
//   peer-assisted networking ..... peer-to-peerverbindingen
//   protected content ............ beschermde inhoud
//   licence file ................. licentiebestand
//   deauthorise .................. autorisatie intrekken
//   trusted location ............. vertrouwde locatie
//   plug-in ...................... plug-in
#pragma once

#include "strings/text_row.h"

namespace NCPStrings {

// clang-format off
inline constexpr TextRow kDutchTexts[] = {
    // Buttons and common words
    {11000, "OK"},
    {11001, "Annuleren"},
    {11002, "Bevestigen"},
    {11003, "Sluiten"},
    {11004, "Toevoegen"},
    {11005, "Toevoegen…"},
    {11006, "Alles wissen…"},
    {11007, "Gegevens wissen"},
    {11008, "Autorisatie intrekken"},
    {11009, "Verwijderen"},
    {11010, "Alles verwijderen…"},
    {11011, "Meer informatie"},
    {11012, "Bestand toevoegen…"},
    {11013, "Map toevoegen…"},
    {11014, "Alles verwijderen"},
    {11015, "Bewerken…"},
    // Permissions in the row of a site; 11103 is Ask as a choice
    {11100, "Blokkeren"},
    {11101, "Vragen"},
    {11102, "Toestaan"},
    {11103, "Om toestemming vragen"},
    // Titles and the command line
    {11200, "Bevestiging vereist"},
    {11400, "Voorkeuren voor Tessary Corvane Player"},
    {11401, "Naam van de weer te geven pagina %s"},
    {11402, "pagina"},
    // Files that could not be deleted
    {11500, "Kan bestanden niet verwijderen"},
    {11501, "Corvane Player kon niet alle lokale opslag wissen. Mogelijk zijn de bestanden door een ander programma vergrendeld. Sluit alle browsers of start uw computer opnieuw op en probeer het daarna nog eens."},
    {11502, "Corvane Player kon niet alle licentiebestanden verwijderen. Mogelijk zijn ze door een ander programma vergrendeld. Sluit alle browsers of start uw computer opnieuw op en probeer het daarna nog eens."},
    // The panel's other name
    {12000, "Instellingenbeheer voor Corvane Player"},
    // Storage page
    {21000, "Opslag"},
    {21001, "Instellingen voor lokale opslag"},
    {21002, "Websites kunnen lokale opslag gebruiken om gegevens te bewaren over het gebruik van Corvane Player op deze computer, zoals kijkgeschiedenis, spelvoortgang, opgeslagen werk, voorkeuren of gegevens waarmee deze computer kan worden geïdentificeerd."},
    {21003, "Meer informatie over privacyinstellingen"},
    {21004, "Websites toestaan informatie op deze computer op te slaan"},
    {21005, "Vragen voordat nieuwe websites informatie op deze computer mogen opslaan"},
    {21006, "Opslaan van informatie op deze computer voor alle websites blokkeren"},
    {21007, "Website-instellingen voor lokale opslag…"},
    // Disabling local storage; adding a local storage setting for a site
    {21100, "Lokale opslag uitschakelen"},
    {21101, "Als u het opslaan van informatie voor alle websites blokkeert, werken sommige functies van bepaalde websites mogelijk niet meer. Ook worden alle gegevens gewist die eerder bezochte websites hebben opgeslagen, waaronder mogelijk spelvoortgang, aanmeldgegevens, opgeslagen werk of voorkeuren."},
    {21102, "Als u het opslaan van informatie voor alle websites blokkeert, werken sommige functies van bepaalde websites mogelijk niet meer."},
    {21103, "Ook worden alle gegevens gewist die eerder bezochte websites hebben opgeslagen, waaronder mogelijk spelvoortgang, aanmeldgegevens, opgeslagen werk of voorkeuren."},
    {21104, "Desgewenst kunt u"},
    {21105, "tijdelijk browsen zonder gegevens of geschiedenis op te slaan."},
    {21106, "Meer informatie over privacyinstellingen"},
    {21107, "Website-instelling voor lokale opslag toevoegen"},
    {21108, "Wanneer deze website lokale opslag wil gebruiken:"},
    {21109, "De website toestaan informatie op deze computer op te slaan"},
    {21110, "Vragen voordat de website informatie op deze computer mag opslaan"},
    {21111, "Opslaan van informatie op deze computer voor de website blokkeren"},
    // Space used by a site
    {21200, "geen"},
    {21201, "%d\u00A0bytes"},
    {21202, "%d\u00A0kB"},
    {21203, "%.2f\u00A0MB"},
    {21204, "%.2f\u00A0GB"},
    // Private browsing
    {21300, "Privénavigatie"},
    {21301, "Desgewenst kunt u tijdelijk browsen zonder geschiedenis of gegevens in de lokale opslag te bewaren."},
    {21302, "Meer informatie over privénavigatie"},
    // Camera and Mic page, with radio buttons
    {31000, "Camera en microfoon"},
    {31001, "Camera- en microfooninstellingen"},
    {31002, "Vragen wanneer een website de camera of microfoon wil gebruiken (aanbevolen)"},
    {31003, "Gebruik van de camera en microfoon voor alle websites blokkeren"},
    {31004, "Website-instellingen voor camera en microfoon…"},
    {31005, "Het gebruik van de camera en microfoon is altijd geblokkeerd. Dit wordt afgedwongen in uw rql.cfg-bestand, mogelijk door uw systeembeheerder."},
    {31006, "Website-instelling voor camera en microfoon toevoegen"},
    {31007, "Wanneer deze website een camera of microfoon wil gebruiken:"},
    // Playback page: peer-assisted networking
    {41000, "Afspelen"},
    {41001, "Peer-to-peerverbindingen"},
    {41002, "Met peer-to-peerverbindingen worden media vloeiender afgespeeld en zijn functies mogelijk die verbinding maken met andere computers, zoals chatten. Hiervoor kan extra bandbreedte worden gebruikt."},
    {41003, "Meer informatie over peer-to-peerverbindingen"},
    {41004, "Vragen wanneer een website peer-to-peerverbindingen wil gebruiken"},
    {41005, "Peer-to-peerverbindingen voor alle websites blokkeren"},
    {41006, "Website-instellingen voor peer-to-peerverbindingen…"},
    // Protected content
    {41100, "Beschermde inhoud"},
    {41101, "Als u deze computer verkoopt of weggeeft, trek dan de autorisatie ervan in. Corvane Player kan eerder bekeken beschermde inhoud, zoals films of muziek die u hebt gekocht, dan niet meer afspelen."},
    {41102, "Meer informatie over beschermde inhoud"},
    {41103, "Autorisatie van deze computer intrekken…"},
    {41104, "Autorisatie van deze computer intrekken"},
    {41105, "Als u de autorisatie intrekt, kan Corvane Player geen beschermde inhoud meer afspelen, zoals films en muziek die u hebt gehuurd of gekocht. Daarna hebt u nieuwe licenties van de aanbieders nodig om beschermde inhoud in Corvane Player af te spelen."},
    {41106, "Sluit alle browsers voordat u de autorisatie van uw computer intrekt."},
    // Adding a peer-assisted networking setting for a site
    {41200, "Website-instelling voor peer-to-peerverbindingen toevoegen"},
    {41201, "Wanneer deze website peer-to-peerverbindingen wil gebruiken:"},
    {41202, "Peer-to-peerverbindingen voor de website toestaan (aanbevolen)"},
    {41203, "Vragen voordat de website peer-to-peerverbindingen mag gebruiken"},
    {41204, "Peer-to-peerverbindingen voor de website blokkeren"},
    // Advanced page: browsing data and updates
    {51000, "Geavanceerd"},
    {51100, "Browsegegevens en instellingen"},
    {51101, "Hiermee wist u in alle browsers op deze computer alle lokale opslag, opgeslagen keuzes, instellingen en andere gegevens die door inhoud in Corvane Player worden gebruikt."},
    {51200, "Updates"},
    {51201, "Corvane Player kan automatisch naar updates zoeken om uw computer te helpen beschermen. Zonder updates kan deze computer blootstaan aan beveiligingsrisico’s."},
    {51202, "Updates automatisch installeren zodra ze beschikbaar zijn (aanbevolen)"},
    {51203, "Nooit naar updates zoeken (niet aanbevolen)"},
    {51204, "Er wordt nooit automatisch naar updates gezocht. Dit wordt afgedwongen in uw rql.cfg-bestand, mogelijk door uw systeembeheerder."},
    {51205, "Nu zoeken"},
    {51206, "Zoek naar updates om uw computer te helpen beschermen en te profiteren van nieuwe verbeteringen in Corvane Player."},
    {51207, "Update-instellingen wijzigen"},
    {51208, "Een melding geven wanneer er updates beschikbaar zijn"},
    {51209, "Automatisch naar updates zoeken (aanbevolen)"},
    // Installed version of the player
    {51300, "Tessary Corvane Player %s is op deze computer geïnstalleerd."},
    {51301, "Kan niet bepalen welke versie van Tessary Corvane Player op deze computer is geïnstalleerd."},
    {51302, "Tessary Corvane Player is niet op deze computer geïnstalleerd."},
    // Developer tools
    {51400, "Hulpmiddelen voor ontwikkelaars"},
    {51401, "Geef vertrouwde locaties op voor tests door ontwikkelaars."},
    {51402, "Instellingen voor vertrouwde locaties…"},
    // Versions of the plug-in
    {52000, "Versie van ActiveX:"},
    {52001, "Versie van de plug-in:"},
    {52002, "Niet geïnstalleerd"},
    {53000, "Versie %s van de plug-in is geïnstalleerd."},
    {53001, "De plug-in is niet geïnstalleerd."},
    // Site lists: column heads, titles, explanations
    {61000, "Website"},
    {61001, "Camera- en microfoontoegang"},
    {61002, "Netwerktoegang"},
    {61003, "Opslagtoegang"},
    {61004, "Gebruikte opslag"},
    {61005, "Website-instellingen voor camera en microfoon"},
    {61006, "Hieronder staan eerder bezochte websites die hebben gevraagd om de camera of microfoon te gebruiken. U kunt het gebruik van de camera en microfoon voor bepaalde websites toestaan of blokkeren. Als u een website verwijdert, worden alle instellingen en gegevens van die website in Corvane Player gewist."},
    {61007, "Website-instellingen voor peer-to-peerverbindingen"},
    {61008, "Hieronder staan eerder bezochte websites die hebben gevraagd om peer-to-peerverbindingen te gebruiken. U kunt het gebruik van peer-to-peerverbindingen voor bepaalde websites toestaan of blokkeren. Als u een website verwijdert, worden alle instellingen en gegevens van die website in Corvane Player gewist."},
    {61009, "Website-instellingen voor lokale opslag"},
    {61010, "Hieronder staan eerder bezochte websites die lokale opslag gebruiken. U kunt het gebruik van lokale opslag voor bepaalde websites toestaan of blokkeren. Als u een website verwijdert, worden alle instellingen en gegevens van die website in Corvane Player gewist."},
    {61011, "Wanneer de geselecteerde website een camera of microfoon wil gebruiken:"},
    {61012, "Wanneer de geselecteerde website peer-to-peerverbindingen wil gebruiken:"},
    {61013, "Wanneer de geselecteerde website lokale opslag wil gebruiken:"},
    // Deleting all site data
    {71000, "Alle websitegegevens in Corvane Player wissen"},
    {71001, "De volgende onderdelen in alle browsers wissen:"},
    {71002, "Alle websitegegevens en website-instellingen wissen"},
    {71003, "Hiermee wist u de lokale opslag, de camera- en microfooninstellingen en de instellingen voor peer-to-peerverbindingen. Websites kunnen lokale opslag gebruiken om gegevens te bewaren over het gebruik van Corvane Player op deze computer, zoals kijkgeschiedenis, spelvoortgang, opgeslagen werk, voorkeuren of gegevens waarmee deze computer kan worden geïdentificeerd. Als u belangrijke gegevens wilt behouden, kunt u de lokale opslag op het tabblad ‘Opslag’ per website wissen."},
    {71004, "Hiermee wist u de lokale opslag, de camera- en microfooninstellingen en de instellingen voor peer-to-peerverbindingen."},
    {71005, "Websites kunnen lokale opslag gebruiken om gegevens te bewaren over het gebruik van Corvane Player op deze computer, zoals kijkgeschiedenis, spelvoortgang, opgeslagen werk, voorkeuren of gegevens waarmee deze computer kan worden geïdentificeerd."},
    {71006, "Als u belangrijke gegevens wilt behouden, kunt u de lokale opslag op het tabblad ‘Opslag’ per website wissen."},
    {71007, "Alle licentiebestanden voor audio en video verwijderen"},
    {71008, "Hiermee verwijdert u alle licentiebestanden, zodat Corvane Player geen beschermde inhoud meer kan afspelen, zoals films en muziek die u hebt gehuurd of gekocht. Sluit alle browsers voordat u deze bestanden verwijdert."},
    {71009, "Als u de volledige browsegeschiedenis wilt wissen, wis dan ook de geschiedenis in uw browsers."},
    // Trusted locations
    {81000, "Instellingen voor vertrouwde locaties"},
    {81001, "Om veiligheidsredenen voorkomt Corvane Player dat inhoud tegelijk toegang heeft tot bestanden op deze computer en tot internet. Ontwikkelaars kunnen hieronder uitzonderingen toevoegen voor vertrouwde inhoud."},
    {81002, "Meer informatie over vertrouwde locaties"},
    {81003, "Vertrouwde bestanden en mappen"},
    {81004, "Licentiebestanden opnieuw instellen"},
    {81005, "Opnieuw instellen"},
    // Choosing trusted files and folders
    {82000, "KBX-bestanden (*.kbx)"},
    {82001, "*.kbx"},
    {82002, "Locatie"},
    {83000, "Vertrouwde map kiezen"},
    {83001, "Vertrouwd bestand kiezen"},
    // Editing a trusted location
    {84000, "Compatibiliteitslocatie bewerken"},
    {84001, "Deze locatie vertrouwen en het gebruik van beveiligingsinstellingen toestaan die compatibel zijn met Corvane Player\u00A07:"},
    // Adding a site
    {91000, "Domein van de website:"},
    {91001, "Voorbeeld: www.example.com, example.com"},
    {92000, "Website toevoegen"},
    {92001, "Website-instelling voor lokale opslag toevoegen"},
    {92002, "Website-instelling voor camera en microfoon toevoegen"},
    {92003, "Website-instelling voor peer-to-peerverbindingen toevoegen"},
};
// clang-format on

}  // namespace NCPStrings

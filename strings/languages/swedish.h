// Swedish texts. Address: informal ("du"). Quotation marks ”…”. The ellipsis
// follows its word directly; the units of sizes follow a no-break space
// (\u00A0).
//
// Glossary, used by every row:
//   site ......................... webbplats
//   local storage ................ lokal lagring
//   setting ...................... inställning
//   allow ........................ tillåta
//   block ........................ blockera
//   ask .......................... fråga
//   camera ....................... kamera
//   microphone ................... mikrofon
//   peer-assisted networking ..... peer-assisterade anslutningar
//   protected content ............ skyddat innehåll
//   licence file ................. licensfil
//   deauthorise .................. avauktorisera
//   trusted location ............. betrodd plats
//   plug-in ...................... insticksmodul
#pragma once

#include "strings/text_row.h"

namespace NCPStrings {

// clang-format off
inline constexpr TextRow kSwedishTexts[] = {
    // Buttons and common words
    {11000, "OK"},
    {11001, "Avbryt"},
    {11002, "Bekräfta"},
    {11003, "Stäng"},
    {11004, "Lägg till"},
    {11005, "Lägg till…"},
    {11006, "Radera allt…"},
    {11007, "Radera data"},
    {11008, "Avauktorisera"},
    {11009, "Ta bort"},
    {11010, "Ta bort alla…"},
    {11011, "Läs mer"},
    {11012, "Lägg till fil…"},
    {11013, "Lägg till mapp…"},
    {11014, "Ta bort alla"},
    {11015, "Redigera…"},
    // Permissions in the row of a site; 11103 is Ask as a choice
    {11100, "Blockera"},
    {11101, "Fråga"},
    {11102, "Tillåt"},
    {11103, "Fråga om tillåtelse"},
    // Titles and the command line
    {11200, "Bekräftelse krävs"},
    {11400, "Inställningar för Tessary Corvane Player"},
    {11401, "Ange namnet på sidan som ska visas %s"},
    {11402, "sida"},
    // Files that could not be deleted
    {11500, "Det gick inte att radera filerna"},
    {11501, "Corvane Player kunde inte radera all lokal lagring. Filerna kan vara låsta av ett annat program. Stäng alla webbläsare eller starta om datorn och försök sedan igen."},
    {11502, "Corvane Player kunde inte radera alla licensfiler. De kan vara låsta av ett annat program. Stäng alla webbläsare eller starta om datorn och försök sedan igen."},
    // The panel's other name
    {12000, "Inställningshanterare för Corvane Player"},
    // Storage page
    {21000, "Lagring"},
    {21001, "Inställningar för lokal lagring"},
    {21002, "Webbplatser kan använda lokal lagring för att spara data om hur Corvane Player används på den här datorn, till exempel visningshistorik, spelframsteg, sparat arbete, inställningar eller data som identifierar datorn."},
    {21003, "Läs mer om integritetsinställningar"},
    {21004, "Tillåt webbplatser att spara information på den här datorn"},
    {21005, "Fråga innan nya webbplatser får spara information på den här datorn"},
    {21006, "Blockera alla webbplatser från att spara information på den här datorn"},
    {21007, "Webbplatsinställningar för lokal lagring…"},
    // Disabling local storage; adding a local storage setting for a site
    {21100, "Inaktivera lokal lagring"},
    {21101, "Om du blockerar alla webbplatser från att spara information kan funktioner på vissa webbplatser sluta fungera. Dessutom raderas alla data som har sparats av tidigare besökta webbplatser, till exempel spelframsteg, inloggningsuppgifter, sparat arbete eller inställningar."},
    {21102, "Om du blockerar alla webbplatser från att spara information kan funktioner på vissa webbplatser sluta fungera."},
    {21103, "Dessutom raderas alla data som har sparats av tidigare besökta webbplatser, till exempel spelframsteg, inloggningsuppgifter, sparat arbete eller inställningar."},
    {21104, "Om du vill kan du"},
    {21105, "surfa tillfälligt utan att spara data eller historik."},
    {21106, "Läs mer om integritetsinställningar"},
    {21107, "Lägg till webbplatsinställning för lokal lagring"},
    {21108, "När den här webbplatsen vill använda lokal lagring:"},
    {21109, "Tillåt webbplatsen att spara information på den här datorn"},
    {21110, "Fråga innan webbplatsen får spara information på den här datorn"},
    {21111, "Blockera webbplatsen från att spara information på den här datorn"},
    // Space used by a site
    {21200, "inget"},
    {21201, "%d\u00A0byte"},
    {21202, "%d\u00A0kB"},
    {21203, "%.2f\u00A0MB"},
    {21204, "%.2f\u00A0GB"},
    // Private browsing
    {21300, "Privat surfning"},
    {21301, "Om du vill kan du surfa tillfälligt utan att spara data i den lokala lagringen eller historiken."},
    {21302, "Läs mer om privat surfning"},
    // Camera and Mic page, with radio buttons
    {31000, "Kamera och mikrofon"},
    {31001, "Kamera- och mikrofoninställningar"},
    {31002, "Fråga när en webbplats vill använda kameran eller mikrofonen (rekommenderas)"},
    {31003, "Blockera alla webbplatser från att använda kameran och mikrofonen"},
    {31004, "Webbplatsinställningar för kamera och mikrofon…"},
    {31005, "Användning av kameran och mikrofonen blockeras alltid. Detta har låsts i din rql.cfg-fil, kanske av din systemadministratör."},
    {31006, "Lägg till webbplatsinställning för kamera och mikrofon"},
    {31007, "När den här webbplatsen vill använda kameran eller mikrofonen:"},
    // Playback page: peer-assisted networking
    {41000, "Uppspelning"},
    {41001, "Peer-assisterade anslutningar"},
    {41002, "Peer-assisterade anslutningar ger jämnare medieuppspelning och möjliggör funktioner som ansluter till andra datorer, till exempel chatt. Det kan kräva extra bandbredd."},
    {41003, "Läs mer om peer-assisterade anslutningar"},
    {41004, "Fråga när en webbplats vill använda peer-assisterade anslutningar"},
    {41005, "Blockera alla webbplatser från att använda peer-assisterade anslutningar"},
    {41006, "Webbplatsinställningar för peer-assisterade anslutningar…"},
    // Protected content
    {41100, "Skyddat innehåll"},
    {41101, "Om du ska sälja eller skänka bort den här datorn bör du avauktorisera den, så att Corvane Player inte kan spela upp skyddat innehåll som har visats tidigare, till exempel filmer eller musik som du har köpt."},
    {41102, "Läs mer om skyddat innehåll"},
    {41103, "Avauktorisera den här datorn…"},
    {41104, "Avauktorisera den här datorn"},
    {41105, "När du har avauktoriserat datorn kan Corvane Player inte längre spela upp skyddat innehåll, till exempel filmer och musik som du har hyrt eller köpt. Du måste då skaffa nya licenser från innehållsleverantörerna för att kunna spela upp skyddat innehåll i Corvane Player igen."},
    {41106, "Stäng alla webbläsare innan du avauktoriserar datorn."},
    // Adding a peer-assisted networking setting for a site
    {41200, "Lägg till webbplatsinställning för peer-assisterade anslutningar"},
    {41201, "När den här webbplatsen vill använda peer-assisterade anslutningar:"},
    {41202, "Tillåt webbplatsen att använda peer-assisterade anslutningar (rekommenderas)"},
    {41203, "Fråga innan webbplatsen får använda peer-assisterade anslutningar"},
    {41204, "Blockera webbplatsen från att använda peer-assisterade anslutningar"},
    // Advanced page: browsing data and updates
    {51000, "Avancerat"},
    {51100, "Webbläsardata och inställningar"},
    {51101, "Radera all lokal lagring, sparade val, inställningar och andra data som används av innehåll i Corvane Player i alla webbläsare på den här datorn."},
    {51200, "Uppdateringar"},
    {51201, "Corvane Player kan söka efter uppdateringar automatiskt för att bidra till att skydda datorn. Utan uppdateringar kan datorn vara sårbar för säkerhetshot."},
    {51202, "Installera uppdateringar automatiskt när de är tillgängliga (rekommenderas)"},
    {51203, "Sök aldrig efter uppdateringar (rekommenderas inte)"},
    {51204, "Automatisk sökning efter uppdateringar görs aldrig. Detta har låsts i din rql.cfg-fil, kanske av din systemadministratör."},
    {51205, "Sök nu"},
    {51206, "Sök efter uppdateringar för att bidra till att skydda datorn och dra nytta av nya förbättringar i Corvane Player."},
    {51207, "Ändra uppdateringsinställningar"},
    {51208, "Meddela mig när det finns uppdateringar"},
    {51209, "Sök efter uppdateringar automatiskt (rekommenderas)"},
    // Installed version of the player
    {51300, "Tessary Corvane Player %s är installerat på den här datorn."},
    {51301, "Det gick inte att avgöra vilken version av Tessary Corvane Player som är installerad på den här datorn."},
    {51302, "Tessary Corvane Player är inte installerat på den här datorn."},
    // Developer tools
    {51400, "Utvecklarverktyg"},
    {51401, "Ange betrodda platser för utvecklartester."},
    {51402, "Inställningar för betrodda platser…"},
    // Versions of the plug-in
    {52000, "ActiveX-version:"},
    {52001, "Insticksmodulens version:"},
    {52002, "Inte installerad"},
    {53000, "Version %s av insticksmodulen är installerad."},
    {53001, "Insticksmodulen är inte installerad."},
    // Site lists: column heads, titles, explanations
    {61000, "Webbplats"},
    {61001, "Kamera- och mikrofonåtkomst"},
    {61002, "Nätverksåtkomst"},
    {61003, "Lagringsåtkomst"},
    {61004, "Använt utrymme"},
    {61005, "Webbplatsinställningar för kamera och mikrofon"},
    {61006, "Nedan visas tidigare besökta webbplatser som har bett om att få använda kameran eller mikrofonen. Du kan tillåta eller blockera att enskilda webbplatser använder kameran och mikrofonen. Om du tar bort en webbplats raderas alla inställningar och data för den webbplatsen i Corvane Player."},
    {61007, "Webbplatsinställningar för peer-assisterade anslutningar"},
    {61008, "Nedan visas tidigare besökta webbplatser som har bett om att få använda peer-assisterade anslutningar. Du kan tillåta eller blockera att enskilda webbplatser använder peer-assisterade anslutningar. Om du tar bort en webbplats raderas alla inställningar och data för den webbplatsen i Corvane Player."},
    {61009, "Webbplatsinställningar för lokal lagring"},
    {61010, "Nedan visas tidigare besökta webbplatser som använder lokal lagring. Du kan tillåta eller blockera att enskilda webbplatser använder lokal lagring. Om du tar bort en webbplats raderas alla inställningar och data för den webbplatsen i Corvane Player."},
    {61011, "När den markerade webbplatsen vill använda kameran eller mikrofonen:"},
    {61012, "När den markerade webbplatsen vill använda peer-assisterade anslutningar:"},
    {61013, "När den markerade webbplatsen vill använda lokal lagring:"},
    // Deleting all site data
    {71000, "Radera alla webbplatsdata i Corvane Player"},
    {71001, "Radera följande i alla webbläsare:"},
    {71002, "Radera alla webbplatsdata och webbplatsinställningar"},
    {71003, "Raderar lokal lagring, kamera- och mikrofoninställningar samt inställningar för peer-assisterade anslutningar. Webbplatser kan använda lokal lagring för att spara data om hur Corvane Player används på den här datorn, till exempel visningshistorik, spelframsteg, sparat arbete, inställningar eller data som identifierar datorn. Om du vill behålla viktiga data kan du ta bort lokal lagring för enskilda webbplatser på fliken ”Lagring”."},
    {71004, "Raderar lokal lagring, kamera- och mikrofoninställningar samt inställningar för peer-assisterade anslutningar."},
    {71005, "Webbplatser kan använda lokal lagring för att spara data om hur Corvane Player används på den här datorn, till exempel visningshistorik, spelframsteg, sparat arbete, inställningar eller data som identifierar datorn."},
    {71006, "Om du vill behålla viktiga data kan du ta bort lokal lagring för enskilda webbplatser på fliken ”Lagring”."},
    {71007, "Radera alla licensfiler för ljud och video"},
    {71008, "Raderar alla licensfiler så att Corvane Player inte kan spela upp skyddat innehåll, till exempel filmer och musik som du har hyrt eller köpt. Stäng alla webbläsare innan du raderar de här filerna."},
    {71009, "Om du vill rensa all webbhistorik behöver du även rensa historiken i dina webbläsare."},
    // Trusted locations
    {81000, "Inställningar för betrodda platser"},
    {81001, "Av säkerhetsskäl hindrar Corvane Player innehåll från att samtidigt komma åt filer på den här datorn och internet. Utvecklare kan lägga till undantag för betrott innehåll nedan."},
    {81002, "Läs mer om betrodda platser"},
    {81003, "Betrodd fil eller mapp"},
    {81004, "Återställ licensfiler"},
    {81005, "Återställ"},
    // Choosing trusted files and folders
    {82000, "KBX-filer (*.kbx)"},
    {82001, "*.kbx"},
    {82002, "Plats"},
    {83000, "Välj betrodd mapp"},
    {83001, "Välj betrodd fil"},
    // Editing a trusted location
    {84000, "Redigera kompatibilitetsplats"},
    {84001, "Lita på den här platsen och tillåt att den använder säkerhetsinställningar som är kompatibla med Corvane Player\u00A07:"},
    // Adding a site
    {91000, "Webbplatsens domän:"},
    {91001, "Exempel: www.example.com, example.com"},
    {92000, "Lägg till webbplats"},
    {92001, "Lägg till webbplatsinställning för lokal lagring"},
    {92002, "Lägg till webbplatsinställning för kamera och mikrofon"},
    {92003, "Lägg till webbplatsinställning för peer-assisterade anslutningar"},
};
// clang-format on

}  // namespace NCPStrings

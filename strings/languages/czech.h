// Czech texts. Address: formal (vykání, "vy"); options and buttons in the
// infinitive. Quotation marks „…“; no blank before "…"; a no-break space
// between a number and its unit, and after a word of one
// letter in texts that are broken into lines.
//
// Glossary, used by every row:
//   site ......................... web
//   website ...................... web
//   local storage ................ místní úložiště
//   setting ...................... nastavení
//   allow ........................ povolit
//   block ........................ blokovat
//   ask .......................... ptát se (11103: žádat o povolení)
//   camera ....................... kamera
//   microphone ................... mikrofon
//   peer-assisted networking ..... komunikace peer-to-peer
//   protected content ............ chráněný obsah
//   licence file ................. licenční soubor
//   deauthorise .................. odebrat autorizaci
//   trusted location ............. důvěryhodné umístění
//   plug-in ...................... zásuvný modul
#pragma once

#include "strings/text_row.h"

namespace NCPStrings {

// clang-format off
inline constexpr TextRow kCzechTexts[] = {
    // Buttons and common words
    {11000, "Budiž"},
    {11001, "Zrušit"},
    {11002, "Potvrdit"},
    {11003, "Zavřít"},
    {11004, "Přidat"},
    {11005, "Přidat…"},
    {11006, "Smazat vše…"},
    {11007, "Smazat data"},
    {11008, "Odebrat autorizaci"},
    {11009, "Odstranit"},
    {11010, "Odstranit vše…"},
    {11011, "Další informace"},
    {11012, "Přidat soubor…"},
    {11013, "Přidat složku…"},
    {11014, "Odstranit vše"},
    {11015, "Upravit…"},
    // Permissions in the row of a site; 11103 is Ask as a choice
    {11100, "Blokovat"},
    {11101, "Ptát se"},
    {11102, "Povolit"},
    {11103, "Žádat o povolení"},
    // Titles and the command line
    {11200, "Vyžadováno potvrzení"},
    {11400, "Nastavení přehrávače Tessary Corvane Player"},
    {11401, "Zadat název stránky, která se má zobrazit %s"},
    {11402, "stránka"},
    // Files that could not be deleted
    {11500, "Soubory nelze smazat"},
    {11501, "Přehrávači Corvane Player se nepodařilo smazat celý obsah místního úložiště. Soubory mohou být zamčeny jiným programem. Zavřete všechny prohlížeče nebo restartujte počítač a\u00A0zkuste to znovu."},
    {11502, "Přehrávači Corvane Player se nepodařilo smazat všechny licenční soubory. Mohou být zamčeny jiným programem. Zavřete všechny prohlížeče nebo restartujte počítač a\u00A0zkuste to znovu."},
    // The panel's other name
    {12000, "Správce nastavení přehrávače Corvane Player"},
    // Storage page
    {21000, "Úložiště"},
    {21001, "Nastavení místního úložiště"},
    {21002, "Weby mohou do místního úložiště ukládat data o\u00A0používání přehrávače Corvane Player na tomto počítači, například historii přehrávání, postup ve hrách, uloženou práci, předvolby nebo data, která tento počítač identifikují."},
    {21003, "Další informace o možnostech ochrany soukromí"},
    {21004, "Povolit webům ukládat informace do tohoto počítače"},
    {21005, "Ptát se, než bude novým webům povoleno ukládat informace do tohoto počítače"},
    {21006, "Blokovat všem webům ukládání informací do tohoto počítače"},
    {21007, "Nastavení místního úložiště pro jednotlivé weby…"},
    // Disabling local storage; adding a local storage setting for a site
    {21100, "Vypnout místní úložiště"},
    {21101, "Pokud všem webům zablokujete ukládání informací, nemusí být na některých webech dostupné všechny funkce. Zároveň budou smazána všechna data uložená dříve navštívenými weby, k\u00A0nimž může patřit postup ve hrách, přihlašovací údaje, uložená práce nebo předvolby."},
    {21102, "Pokud všem webům zablokujete ukládání informací, nemusí být na některých webech dostupné všechny funkce."},
    {21103, "Zároveň budou smazána všechna data uložená dříve navštívenými weby, k nimž může patřit postup ve hrách, přihlašovací údaje, uložená práce nebo předvolby."},
    {21104, "Můžete také"},
    {21105, "dočasně procházet internet bez ukládání dat a historie."},
    {21106, "Další informace o možnostech ochrany soukromí"},
    {21107, "Přidání nastavení místního úložiště pro web"},
    {21108, "Když chce tento web používat místní úložiště:"},
    {21109, "Povolit webu ukládat informace do tohoto počítače"},
    {21110, "Ptát se, než bude webu povoleno ukládat informace do tohoto počítače"},
    {21111, "Blokovat webu ukládání informací do tohoto počítače"},
    // Space used by a site
    {21200, "žádné"},
    {21201, "%d\u00A0B"},
    {21202, "%d\u00A0kB"},
    {21203, "%.2f\u00A0MB"},
    {21204, "%.2f\u00A0GB"},
    // Private browsing
    {21300, "Anonymní prohlížení"},
    {21301, "Internet můžete dočasně procházet i\u00A0bez ukládání historie a\u00A0dat do místního úložiště."},
    {21302, "Další informace o anonymním prohlížení"},
    // Camera and Mic page, with radio buttons
    {31000, "Kamera a mikrofon"},
    {31001, "Nastavení kamery a mikrofonu"},
    {31002, "Ptát se, když chce web používat kameru nebo mikrofon (doporučeno)"},
    {31003, "Blokovat všem webům používání kamery a mikrofonu"},
    {31004, "Nastavení kamery a mikrofonu pro jednotlivé weby…"},
    {31005, "Používání kamery a mikrofonu je vždy blokováno. Toto nadřazené nastavení pochází ze souboru rql.cfg a mohl je určit správce systému."},
    {31006, "Přidání nastavení kamery a mikrofonu pro web"},
    {31007, "Když chce tento web používat kameru nebo mikrofon:"},
    // Playback page: peer-assisted networking
    {41000, "Přehrávání"},
    {41001, "Komunikace peer-to-peer"},
    {41002, "Komunikace peer-to-peer umožňuje plynulejší přehrávání médií a\u00A0také funkce, které se připojují k\u00A0jiným počítačům, například chat. Může více zatěžovat internetové připojení."},
    {41003, "Další informace o komunikaci peer-to-peer"},
    {41004, "Ptát se, když chce web používat komunikaci peer-to-peer"},
    {41005, "Blokovat všem webům používání komunikace peer-to-peer"},
    {41006, "Nastavení komunikace peer-to-peer pro jednotlivé weby…"},
    // Protected content
    {41100, "Chráněný obsah"},
    {41101, "Pokud tento počítač prodáváte nebo darujete, odeberte mu autorizaci. Přehrávač Corvane Player pak nebude moci přehrávat dříve zhlédnutý chráněný obsah, například zakoupené filmy nebo hudbu."},
    {41102, "Další informace o chráněném obsahu"},
    {41103, "Odebrat autorizaci tomuto počítači…"},
    {41104, "Odebrat autorizaci tomuto počítači"},
    {41105, "Po odebrání autorizace nebude moci přehrávač Corvane Player přehrávat chráněný obsah, například vypůjčené nebo zakoupené filmy a\u00A0hudbu. Chcete-li potom chráněný obsah v\u00A0přehrávači Corvane Player přehrávat, budete muset od poskytovatelů obsahu získat nové licence."},
    {41106, "Než počítači odeberete autorizaci, zavřete všechny prohlížeče."},
    // Adding a peer-assisted networking setting for a site
    {41200, "Přidání nastavení komunikace peer-to-peer pro web"},
    {41201, "Když chce tento web používat komunikaci peer-to-peer:"},
    {41202, "Povolit webu používat komunikaci peer-to-peer (doporučeno)"},
    {41203, "Ptát se, než bude webu povoleno používat komunikaci peer-to-peer"},
    {41204, "Blokovat webu používání komunikace peer-to-peer"},
    // Advanced page: browsing data and updates
    {51000, "Pokročilé"},
    {51100, "Údaje o prohlížení a nastavení"},
    {51101, "Smaže celý obsah místního úložiště, uložené volby, nastavení a\u00A0další data používaná obsahem v\u00A0přehrávači Corvane Player, a\u00A0to ve všech prohlížečích na tomto počítači."},
    {51200, "Aktualizace"},
    {51201, "Přehrávač Corvane Player může automaticky vyhledávat aktualizace, které pomáhají chránit váš počítač. Bez aktualizací může být tento počítač vystaven bezpečnostním hrozbám."},
    {51202, "Instalovat dostupné aktualizace automaticky (doporučeno)"},
    {51203, "Nikdy nevyhledávat aktualizace (nedoporučeno)"},
    {51204, "Aktualizace se nikdy nevyhledávají automaticky. Toto nadřazené nastavení pochází ze souboru rql.cfg a mohl je určit správce systému."},
    {51205, "Vyhledat nyní"},
    {51206, "Vyhledejte aktualizace, abyste lépe chránili svůj počítač a\u00A0mohli využívat nová vylepšení přehrávače Corvane Player."},
    {51207, "Změnit nastavení aktualizací"},
    {51208, "Upozorňovat na dostupné aktualizace"},
    {51209, "Vyhledávat aktualizace automaticky (doporučeno)"},
    // Installed version of the player
    {51300, "Na tomto počítači je nainstalován přehrávač Tessary Corvane Player %s."},
    {51301, "Nelze zjistit verzi přehrávače Tessary Corvane Player nainstalovaného na tomto počítači."},
    {51302, "Přehrávač Tessary Corvane Player není na tomto počítači nainstalován."},
    // Developer tools
    {51400, "Nástroje pro vývojáře"},
    {51401, "Určete důvěryhodná umístění pro testování při vývoji."},
    {51402, "Nastavení důvěryhodných umístění…"},
    // Versions of the plug-in
    {52000, "Verze ActiveX:"},
    {52001, "Verze zásuvného modulu:"},
    {52002, "Není nainstalováno"},
    {53000, "Je nainstalován zásuvný modul verze %s."},
    {53001, "Zásuvný modul není nainstalován."},
    // Site lists: column heads, titles, explanations
    {61000, "Web"},
    {61001, "Přístup ke kameře a mikrofonu"},
    {61002, "Přístup k síti"},
    {61003, "Přístup k úložišti"},
    {61004, "Využité místo"},
    {61005, "Nastavení kamery a mikrofonu pro jednotlivé weby"},
    {61006, "Níže jsou uvedeny dříve navštívené weby, které požádaly o\u00A0použití kamery nebo mikrofonu. Jednotlivým webům můžete používání kamery a\u00A0mikrofonu povolit nebo blokovat. Odstraněním webu smažete všechna jeho nastavení a\u00A0data v\u00A0přehrávači Corvane Player."},
    {61007, "Nastavení komunikace peer-to-peer pro jednotlivé weby"},
    {61008, "Níže jsou uvedeny dříve navštívené weby, které požádaly o\u00A0použití komunikace peer-to-peer. Jednotlivým webům můžete používání komunikace peer-to-peer povolit nebo blokovat. Odstraněním webu smažete všechna jeho nastavení a\u00A0data v\u00A0přehrávači Corvane Player."},
    {61009, "Nastavení místního úložiště pro jednotlivé weby"},
    {61010, "Níže jsou uvedeny dříve navštívené weby, které používají místní úložiště. Jednotlivým webům můžete používání místního úložiště povolit nebo blokovat. Odstraněním webu smažete všechna jeho nastavení a\u00A0data v\u00A0přehrávači Corvane Player."},
    {61011, "Když chce vybraný web používat kameru nebo mikrofon:"},
    {61012, "Když chce vybraný web používat komunikaci peer-to-peer:"},
    {61013, "Když chce vybraný web používat místní úložiště:"},
    // Deleting all site data
    {71000, "Smazání všech dat webů v přehrávači Corvane Player"},
    {71001, "Smazat ve všech prohlížečích následující položky:"},
    {71002, "Smazat všechna data a nastavení webů"},
    {71003, "Smaže obsah místního úložiště, nastavení kamery a\u00A0mikrofonu a\u00A0nastavení komunikace peer-to-peer. Weby mohou do místního úložiště ukládat data o\u00A0používání přehrávače Corvane Player na tomto počítači, například historii přehrávání, postup ve hrách, uloženou práci, předvolby nebo data, která tento počítač identifikují. Chcete-li důležitá data zachovat, můžete obsah místního úložiště odstraňovat po jednotlivých webech na kartě „Úložiště“."},
    {71004, "Smaže obsah místního úložiště, nastavení kamery a mikrofonu a nastavení komunikace peer-to-peer."},
    {71005, "Weby mohou do místního úložiště ukládat data o používání přehrávače Corvane Player na tomto počítači, například historii přehrávání, postup ve hrách, uloženou práci, předvolby nebo data, která tento počítač identifikují."},
    {71006, "Chcete-li důležitá data zachovat, můžete obsah místního úložiště odstraňovat po jednotlivých webech na kartě „Úložiště“."},
    {71007, "Smazat všechny licenční soubory zvuku a videa"},
    {71008, "Smaže všechny licenční soubory, takže přehrávač Corvane Player nebude moci přehrávat chráněný obsah, například vypůjčené nebo zakoupené filmy a\u00A0hudbu. Před smazáním těchto souborů zavřete všechny prohlížeče."},
    {71009, "Chcete-li vymazat celou historii prohlížení, vymažte také historii ve svých prohlížečích."},
    // Trusted locations
    {81000, "Nastavení důvěryhodných umístění"},
    {81001, "Přehrávač Corvane Player z\u00A0bezpečnostních důvodů nedovoluje obsahu přistupovat zároveň k\u00A0souborům na tomto počítači i\u00A0k\u00A0internetu. Vývojáři mohou níže přidat výjimky pro důvěryhodný obsah."},
    {81002, "Další informace o důvěryhodných umístěních"},
    {81003, "Důvěryhodný soubor nebo složka"},
    {81004, "Resetovat licenční soubory"},
    {81005, "Resetovat"},
    // Choosing trusted files and folders
    {82000, "Soubory KBX (*.kbx)"},
    {82001, "*.kbx"},
    {82002, "Umístění"},
    {83000, "Vyberte důvěryhodnou složku"},
    {83001, "Vyberte důvěryhodný soubor"},
    // Editing a trusted location
    {84000, "Úprava umístění pro režim kompatibility"},
    {84001, "Důvěřovat tomuto umístění a\u00A0povolit mu používat nastavení zabezpečení kompatibilní s\u00A0přehrávačem Corvane Player\u00A07:"},
    // Adding a site
    {91000, "Doména webu:"},
    {91001, "Příklad: www.example.com, example.com"},
    {92000, "Přidání webu"},
    {92001, "Přidání nastavení místního úložiště pro web"},
    {92002, "Přidání nastavení kamery a mikrofonu pro web"},
    {92003, "Přidání nastavení komunikace peer-to-peer pro web"},
};
// clang-format on

}  // namespace NCPStrings

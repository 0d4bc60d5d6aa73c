// Italian texts. Address: impersonal; familiar imperatives on buttons and
// choices ("Annulla"), infinitives in instructions ("Chiudere").
// Quotation marks «…» and apostrophe ’, no blank before an ellipsis or a colon.
//
// Glossary, used by every row:
//   site ......................... sito, sito web
//   local storage ................ archiviazione locale
//   setting ...................... impostazione
//   allow ........................ consentire
//   block ........................ bloccare
//   ask .......................... chiedere
//   camera ....................... fotocamera
//   microphone ................... microfono
//   peer-assisted networking ..... rete assistita dai peer
//   protected content ............ contenuti protetti
//   licence file ................. file di licenza
//   deauthorise .................. revocare l’autorizzazione
//   trusted location ............. posizione attendibile
//   plug-in ...................... plugin
#pragma once

#include "strings/text_row.h"

namespace NCPStrings {

// clang-format off
inline constexpr TextRow kItalianTexts[] = {
    // Buttons and common words
    {11000, "OK"},
    {11001, "Annulla"},
    {11002, "Conferma"},
    {11003, "Chiudi"},
    {11004, "Aggiungi"},
    {11005, "Aggiungi…"},
    {11006, "Elimina tutto…"},
    {11007, "Elimina dati"},
    {11008, "Revoca autorizzazione"},
    {11009, "Rimuovi"},
    {11010, "Rimuovi tutto…"},
    {11011, "Ulteriori informazioni"},
    {11012, "Aggiungi file…"},
    {11013, "Aggiungi cartella…"},
    {11014, "Rimuovi tutto"},
    {11015, "Modifica…"},
    // Permissions in the row of a site; 11103 is Ask as a choice
    {11100, "Blocca"},
    {11101, "Chiedi"},
    {11102, "Consenti"},
    {11103, "Chiedi il permesso"},
    // Titles and the command line
    {11200, "Conferma necessaria"},
    {11400, "Preferenze di Tessary Corvane Player"},
    {11401, "Specifica il nome della pagina da mostrare %s"},
    {11402, "pagina"},
    // Files that could not be deleted
    {11500, "Impossibile eliminare i file"},
    {11501, "Corvane Player non è riuscito a eliminare tutti i dati dell’archiviazione locale. È possibile che i file siano bloccati da un altro programma. Chiudere tutti i browser o riavviare il computer, quindi riprovare."},
    {11502, "Corvane Player non è riuscito a eliminare tutti i file di licenza. È possibile che siano bloccati da un altro programma. Chiudere tutti i browser o riavviare il computer, quindi riprovare."},
    // The panel's other name
    {12000, "Gestione impostazioni di Corvane Player"},
    // Storage page
    {21000, "Archiviazione"},
    {21001, "Impostazioni di archiviazione locale"},
    {21002, "I siti web possono usare l’archiviazione locale per salvare dati relativi all’uso di Corvane Player su questo computer, come la cronologia di visualizzazione, i progressi nei giochi, il lavoro salvato, le preferenze o dati che identificano il computer."},
    {21003, "Ulteriori informazioni sui controlli per la privacy"},
    {21004, "Consenti ai siti di salvare informazioni su questo computer"},
    {21005, "Chiedi prima di consentire a nuovi siti di salvare informazioni su questo computer"},
    {21006, "Blocca il salvataggio di informazioni su questo computer per tutti i siti"},
    {21007, "Impostazioni di archiviazione locale per sito…"},
    // Disabling local storage; adding a local storage setting for a site
    {21100, "Disattiva archiviazione locale"},
    {21101, "Se si blocca il salvataggio di informazioni per tutti i siti, alcune funzionalità di determinati siti web potrebbero non essere disponibili. Verranno inoltre eliminati tutti i dati salvati dai siti visitati in precedenza, che possono includere progressi nei giochi, dati di accesso, lavoro salvato o preferenze."},
    {21102, "Se si blocca il salvataggio di informazioni per tutti i siti, alcune funzionalità di determinati siti web potrebbero non essere disponibili."},
    {21103, "Verranno inoltre eliminati tutti i dati salvati dai siti visitati in precedenza, che possono includere progressi nei giochi, dati di accesso, lavoro salvato o preferenze."},
    {21104, "In alternativa, è possibile"},
    {21105, "navigare temporaneamente senza salvare dati o cronologia."},
    {21106, "Ulteriori informazioni sui controlli per la privacy"},
    {21107, "Aggiungi impostazione di archiviazione locale per un sito"},
    {21108, "Quando questo sito vuole usare l’archiviazione locale:"},
    {21109, "Consenti al sito di salvare informazioni su questo computer"},
    {21110, "Chiedi prima di consentire al sito di salvare informazioni su questo computer"},
    {21111, "Blocca il salvataggio di informazioni su questo computer per questo sito"},
    // Space used by a site
    {21200, "nessuno"},
    {21201, "%d\u00A0byte"},
    {21202, "%d\u00A0kB"},
    {21203, "%.2f\u00A0MB"},
    {21204, "%.2f\u00A0GB"},
    // Private browsing
    {21300, "Navigazione anonima"},
    {21301, "In alternativa, è possibile navigare temporaneamente senza salvare la cronologia né i dati dell’archiviazione locale."},
    {21302, "Ulteriori informazioni sulla navigazione anonima"},
    // Camera and Mic page, with radio buttons
    {31000, "Fotocamera e microfono"},
    {31001, "Impostazioni di fotocamera e microfono"},
    {31002, "Chiedi quando un sito vuole usare la fotocamera o il microfono (consigliato)"},
    {31003, "Blocca l’uso della fotocamera e del microfono per tutti i siti"},
    {31004, "Impostazioni di fotocamera e microfono per sito…"},
    {31005, "L’uso della fotocamera e del microfono è sempre bloccato. Questo comportamento è imposto dal file rql.cfg, forse per scelta dell’amministratore di sistema."},
    {31006, "Aggiungi impostazione di fotocamera e microfono per un sito"},
    {31007, "Quando questo sito vuole usare la fotocamera o il microfono:"},
    // Playback page: peer-assisted networking
    {41000, "Riproduzione"},
    {41001, "Rete assistita dai peer"},
    {41002, "La rete assistita dai peer consente una riproduzione multimediale più fluida e funzionalità, come la chat, che si collegano ad altri computer. Può richiedere ulteriore larghezza di banda."},
    {41003, "Ulteriori informazioni sulla rete assistita dai peer"},
    {41004, "Chiedi quando un sito vuole usare la rete assistita dai peer"},
    {41005, "Blocca l’uso della rete assistita dai peer per tutti i siti"},
    {41006, "Impostazioni della rete assistita dai peer per sito…"},
    // Protected content
    {41100, "Contenuti protetti"},
    {41101, "Se si intende vendere o donare questo computer, revocarne l’autorizzazione per impedire a Corvane Player di riprodurre contenuti protetti visualizzati in precedenza, come film o musica acquistati."},
    {41102, "Ulteriori informazioni sui contenuti protetti"},
    {41103, "Revoca autorizzazione di questo computer…"},
    {41104, "Revoca autorizzazione di questo computer"},
    {41105, "La revoca dell’autorizzazione impedisce a Corvane Player di riprodurre contenuti protetti, come film e musica noleggiati o acquistati. Dopo la revoca sarà necessario ottenere nuove licenze dai fornitori di contenuti per riprodurre contenuti protetti in Corvane Player."},
    {41106, "Chiudere tutti i browser prima di revocare l’autorizzazione del computer."},
    // Adding a peer-assisted networking setting for a site
    {41200, "Aggiungi impostazione della rete assistita dai peer per un sito"},
    {41201, "Quando questo sito vuole usare la rete assistita dai peer:"},
    {41202, "Consenti al sito di usare la rete assistita dai peer (consigliato)"},
    {41203, "Chiedi prima di consentire al sito di usare la rete assistita dai peer"},
    {41204, "Blocca l’uso della rete assistita dai peer per questo sito"},
    // Advanced page: browsing data and updates
    {51000, "Avanzate"},
    {51100, "Dati di navigazione e impostazioni"},
    {51101, "Eliminare tutti i dati dell’archiviazione locale, le scelte salvate, le impostazioni e gli altri dati usati dai contenuti in Corvane Player in tutti i browser di questo computer."},
    {51200, "Aggiornamenti"},
    {51201, "Corvane Player può verificare automaticamente la disponibilità di aggiornamenti per contribuire a proteggere il computer. Senza aggiornamenti, questo computer potrebbe essere esposto a minacce alla sicurezza."},
    {51202, "Installa automaticamente gli aggiornamenti quando disponibili (consigliato)"},
    {51203, "Non verificare mai la disponibilità di aggiornamenti (sconsigliato)"},
    {51204, "La disponibilità di aggiornamenti non viene mai verificata automaticamente. Questo comportamento è imposto dal file rql.cfg, forse per scelta dell’amministratore di sistema."},
    {51205, "Verifica ora"},
    {51206, "Verificare la disponibilità di aggiornamenti per contribuire a proteggere il computer e usufruire dei nuovi miglioramenti di Corvane Player."},
    {51207, "Modifica impostazioni di aggiornamento"},
    {51208, "Avvisa quando sono disponibili aggiornamenti"},
    {51209, "Verifica automaticamente la disponibilità di aggiornamenti (consigliato)"},
    // Installed version of the player
    {51300, "Tessary Corvane Player %s è installato su questo computer."},
    {51301, "Impossibile determinare la versione di Tessary Corvane Player installata su questo computer."},
    {51302, "Tessary Corvane Player non è installato su questo computer."},
    // Developer tools
    {51400, "Strumenti di sviluppo"},
    {51401, "Specificare le posizioni attendibili per i test di sviluppo."},
    {51402, "Impostazioni delle posizioni attendibili…"},
    // Versions of the plug-in
    {52000, "Versione di ActiveX:"},
    {52001, "Versione del plugin:"},
    {52002, "Non installato"},
    {53000, "La versione %s del plugin è installata."},
    {53001, "Il plugin non è installato."},
    // Site lists: column heads, titles, explanations
    {61000, "Sito web"},
    {61001, "Uso fotocamera e microfono"},
    {61002, "Accesso alla rete"},
    {61003, "Accesso all’archiviazione"},
    {61004, "Spazio usato"},
    {61005, "Impostazioni di fotocamera e microfono per sito"},
    {61006, "Di seguito sono elencati i siti web visitati in precedenza che hanno chiesto di usare la fotocamera o il microfono. È possibile consentire o bloccare l’uso della fotocamera e del microfono per siti specifici. Rimuovere un sito per eliminare tutte le impostazioni e tutti i dati di quel sito in Corvane Player."},
    {61007, "Impostazioni della rete assistita dai peer per sito"},
    {61008, "Di seguito sono elencati i siti web visitati in precedenza che hanno chiesto di usare la rete assistita dai peer. È possibile consentire o bloccare l’uso della rete assistita dai peer per siti specifici. Rimuovere un sito per eliminare tutte le impostazioni e tutti i dati di quel sito in Corvane Player."},
    {61009, "Impostazioni di archiviazione locale per sito"},
    {61010, "Di seguito sono elencati i siti web visitati in precedenza che usano l’archiviazione locale. È possibile consentire o bloccare l’uso dell’archiviazione locale per siti specifici. Rimuovere un sito per eliminare tutte le impostazioni e tutti i dati di quel sito in Corvane Player."},
    {61011, "Quando il sito selezionato vuole usare la fotocamera o il microfono:"},
    {61012, "Quando il sito selezionato vuole usare la rete assistita dai peer:"},
    {61013, "Quando il sito selezionato vuole usare l’archiviazione locale:"},
    // Deleting all site data
    {71000, "Elimina tutti i dati dei siti in Corvane Player"},
    {71001, "Elimina i seguenti elementi in tutti i browser:"},
    {71002, "Elimina tutti i dati e le impostazioni dei siti"},
    {71003, "Elimina i dati dell’archiviazione locale, le impostazioni di fotocamera e microfono e quelle della rete assistita dai peer. I siti web possono usare l’archiviazione locale per salvare dati relativi all’uso di Corvane Player su questo computer, come la cronologia di visualizzazione, i progressi nei giochi, il lavoro salvato, le preferenze o dati che identificano il computer. Per conservare i dati importanti, è possibile eliminare i dati dell’archiviazione locale sito per sito nella scheda «Archiviazione»."},
    {71004, "Elimina i dati dell’archiviazione locale, le impostazioni di fotocamera e microfono e quelle della rete assistita dai peer."},
    {71005, "I siti web possono usare l’archiviazione locale per salvare dati relativi all’uso di Corvane Player su questo computer, come la cronologia di visualizzazione, i progressi nei giochi, il lavoro salvato, le preferenze o dati che identificano il computer."},
    {71006, "Per conservare i dati importanti, è possibile eliminare i dati dell’archiviazione locale sito per sito nella scheda «Archiviazione»."},
    {71007, "Elimina tutti i file di licenza audio e video"},
    {71008, "Elimina tutti i file di licenza per impedire a Corvane Player di riprodurre contenuti protetti, come film e musica noleggiati o acquistati. Chiudere tutti i browser prima di eliminare questi file."},
    {71009, "Per cancellare l’intera cronologia di navigazione, cancellare anche i dati della cronologia nei browser."},
    // Trusted locations
    {81000, "Impostazioni delle posizioni attendibili"},
    {81001, "Per motivi di sicurezza, Corvane Player impedisce ai contenuti di accedere contemporaneamente ai file di questo computer e a Internet. Gli sviluppatori possono aggiungere qui sotto eccezioni per i contenuti attendibili."},
    {81002, "Ulteriori informazioni sulle posizioni attendibili"},
    {81003, "File o cartella attendibile"},
    {81004, "Reimposta file di licenza"},
    {81005, "Reimposta"},
    // Choosing trusted files and folders
    {82000, "File KBX (*.kbx)"},
    {82001, "*.kbx"},
    {82002, "Posizione"},
    {83000, "Seleziona una cartella attendibile"},
    {83001, "Seleziona un file attendibile"},
    // Editing a trusted location
    {84000, "Modifica posizione di compatibilità"},
    {84001, "Considera attendibile questa posizione e consenti l’uso di impostazioni di sicurezza compatibili con Corvane Player\u00A07:"},
    // Adding a site
    {91000, "Dominio del sito web:"},
    {91001, "Esempio: www.example.com, example.com"},
    {92000, "Aggiungi sito"},
    {92001, "Aggiungi impostazione di archiviazione locale per un sito"},
    {92002, "Aggiungi impostazione di fotocamera e microfono per un sito"},
    {92003, "Aggiungi impostazione della rete assistita dai peer per un sito"},
};
// clang-format on

}  // namespace NCPStrings

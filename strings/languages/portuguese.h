// Portuguese texts, as written in Brazil. Address: "você", infinitives on
// buttons and choices.
// Quotation marks “…”, no blank before an ellipsis or a colon; a no-break space
// between number and unit.
//
// Glossary, used by every row:
//   site ......................... site
//   local storage ................ armazenamento local
//   setting ...................... configuração
//   allow ........................ permitir
//   block ........................ bloquear
//   ask .......................... perguntar
//   camera ....................... câmera
//   microphone ................... microfone
//   peer-assisted networking ..... rede assistida por pares
//   protected content ............ conteúdo protegido
//   licence file ................. arquivo de licença
//   deauthorise .................. desautorizar
//   trusted location ............. local confiável
//   plug-in ...................... plugin
#pragma once

#include "strings/text_row.h"

namespace NCPStrings {

// clang-format off
inline constexpr TextRow kPortugueseTexts[] = {
    // Buttons and common words
    {11000, "OK"},
    {11001, "Cancelar"},
    {11002, "Confirmar"},
    {11003, "Fechar"},
    {11004, "Adicionar"},
    {11005, "Adicionar…"},
    {11006, "Excluir tudo…"},
    {11007, "Excluir dados"},
    {11008, "Desautorizar"},
    {11009, "Remover"},
    {11010, "Remover tudo…"},
    {11011, "Saiba mais"},
    {11012, "Adicionar arquivo…"},
    {11013, "Adicionar pasta…"},
    {11014, "Remover tudo"},
    {11015, "Editar…"},
    // Permissions in the row of a site; 11103 is Ask as a choice
    {11100, "Bloquear"},
    {11101, "Perguntar"},
    {11102, "Permitir"},
    {11103, "Pedir permissão"},
    // Titles and the command line
    {11200, "Confirmação necessária"},
    {11400, "Preferências do Tessary Corvane Player"},
    {11401, "Especifica o nome da página a ser exibida %s"},
    {11402, "página"},
    // Files that could not be deleted
    {11500, "Não foi possível excluir os arquivos"},
    {11501, "O Corvane Player não conseguiu excluir todos os dados do armazenamento local. Os arquivos podem estar bloqueados por outro programa. Feche todos os navegadores ou reinicie o computador e tente novamente."},
    {11502, "O Corvane Player não conseguiu excluir todos os arquivos de licença. Eles podem estar bloqueados por outro programa. Feche todos os navegadores ou reinicie o computador e tente novamente."},
    // The panel's other name
    {12000, "Gerenciador de configurações do Corvane Player"},
    // Storage page
    {21000, "Armazenamento"},
    {21001, "Configurações do armazenamento local"},
    {21002, "Os sites podem usar o armazenamento local para salvar dados sobre o uso do Corvane Player neste computador, como histórico de visualização, progresso em jogos, trabalhos salvos, preferências ou dados que identificam este computador."},
    {21003, "Saiba mais sobre os controles de privacidade"},
    {21004, "Permitir que os sites salvem informações neste computador"},
    {21005, "Perguntar antes de permitir que novos sites salvem informações neste computador"},
    {21006, "Bloquear o armazenamento de informações neste computador para todos os sites"},
    {21007, "Configurações do armazenamento local para cada site…"},
    // Disabling local storage; adding a local storage setting for a site
    {21100, "Desativar armazenamento local"},
    {21101, "Bloquear o armazenamento de informações para todos os sites pode desativar funcionalidades em alguns sites. Isso também excluirá todos os dados armazenados por sites visitados anteriormente, que podem incluir progresso em jogos, dados de login, trabalhos salvos ou preferências."},
    {21102, "Bloquear o armazenamento de informações para todos os sites pode desativar funcionalidades em alguns sites."},
    {21103, "Isso também excluirá todos os dados armazenados por sites visitados anteriormente, que podem incluir progresso em jogos, dados de login, trabalhos salvos ou preferências."},
    {21104, "Se preferir, você pode"},
    {21105, "navegar temporariamente sem salvar dados nem histórico."},
    {21106, "Saiba mais sobre os controles de privacidade"},
    {21107, "Adicionar configuração de armazenamento local para um site"},
    {21108, "Quando este site quiser usar o armazenamento local:"},
    {21109, "Permitir que o site salve informações neste computador"},
    {21110, "Perguntar antes de permitir que o site salve informações neste computador"},
    {21111, "Bloquear o armazenamento de informações neste computador para este site"},
    // Space used by a site
    {21200, "nenhum"},
    {21201, "%d\u00A0bytes"},
    {21202, "%d\u00A0kB"},
    {21203, "%.2f\u00A0MB"},
    {21204, "%.2f\u00A0GB"},
    // Private browsing
    {21300, "Navegação privativa"},
    {21301, "Se preferir, você pode navegar temporariamente sem salvar o histórico nem dados no armazenamento local."},
    {21302, "Saiba mais sobre a navegação privativa"},
    // Camera and Mic page, with radio buttons
    {31000, "Câmera e microfone"},
    {31001, "Configurações da câmera e do microfone"},
    {31002, "Perguntar quando um site quiser usar a câmera ou o microfone (recomendado)"},
    {31003, "Bloquear o uso da câmera e do microfone para todos os sites"},
    {31004, "Configurações da câmera e do microfone para cada site…"},
    {31005, "O uso da câmera e do microfone está sempre bloqueado. Essa restrição foi definida no arquivo rql.cfg, possivelmente pelo administrador do sistema."},
    {31006, "Adicionar configuração de câmera e microfone para um site"},
    {31007, "Quando este site quiser usar a câmera ou o microfone:"},
    // Playback page: peer-assisted networking
    {41000, "Reprodução"},
    {41001, "Rede assistida por pares"},
    {41002, "A rede assistida por pares permite uma reprodução de mídia mais fluida e recursos que se conectam a outros computadores, como bate-papo. Ela pode consumir mais largura de banda."},
    {41003, "Saiba mais sobre a rede assistida por pares"},
    {41004, "Perguntar quando um site quiser usar a rede assistida por pares"},
    {41005, "Bloquear o uso da rede assistida por pares para todos os sites"},
    {41006, "Configurações da rede assistida por pares para cada site…"},
    // Protected content
    {41100, "Conteúdo protegido"},
    {41101, "Se você for vender ou doar este computador, desautorize-o para impedir que o Corvane Player reproduza conteúdo protegido acessado anteriormente, como filmes ou músicas que você tenha comprado."},
    {41102, "Saiba mais sobre conteúdo protegido"},
    {41103, "Desautorizar este computador…"},
    {41104, "Desautorizar este computador"},
    {41105, "A desautorização impede que o Corvane Player reproduza conteúdo protegido, como filmes e músicas que você tenha alugado ou comprado. Depois de desautorizar o computador, você precisará obter novas licenças dos provedores de conteúdo para reproduzir conteúdo protegido no Corvane Player."},
    {41106, "Feche todos os navegadores antes de desautorizar o computador."},
    // Adding a peer-assisted networking setting for a site
    {41200, "Adicionar configuração de rede assistida por pares para um site"},
    {41201, "Quando este site quiser usar a rede assistida por pares:"},
    {41202, "Permitir que o site use a rede assistida por pares (recomendado)"},
    {41203, "Perguntar antes de permitir que o site use a rede assistida por pares"},
    {41204, "Bloquear o uso da rede assistida por pares para este site"},
    // Advanced page: browsing data and updates
    {51000, "Avançado"},
    {51100, "Dados de navegação e configurações"},
    {51101, "Exclua todos os dados do armazenamento local, as escolhas salvas, as configurações e outros dados usados pelo conteúdo no Corvane Player em todos os navegadores deste computador."},
    {51200, "Atualizações"},
    {51201, "O Corvane Player pode verificar automaticamente se há atualizações para ajudar a proteger o computador. Deixar de atualizar pode tornar este computador vulnerável a ameaças de segurança."},
    {51202, "Instalar atualizações automaticamente quando disponíveis (recomendado)"},
    {51203, "Nunca verificar se há atualizações (não recomendado)"},
    {51204, "A verificação automática de atualizações está desativada. Essa restrição foi definida no arquivo rql.cfg, possivelmente pelo administrador do sistema."},
    {51205, "Verificar agora"},
    {51206, "Verifique se há atualizações para ajudar a proteger o computador e aproveitar as novas melhorias do Corvane Player."},
    {51207, "Alterar configurações de atualização"},
    {51208, "Notificar quando houver atualizações disponíveis"},
    {51209, "Verificar automaticamente se há atualizações (recomendado)"},
    // Installed version of the player
    {51300, "O Tessary Corvane Player %s está instalado neste computador."},
    {51301, "Não foi possível determinar a versão do Tessary Corvane Player instalada neste computador."},
    {51302, "O Tessary Corvane Player não está instalado neste computador."},
    // Developer tools
    {51400, "Ferramentas de desenvolvimento"},
    {51401, "Especifique os locais confiáveis para testes de desenvolvimento."},
    {51402, "Configurações de locais confiáveis…"},
    // Versions of the plug-in
    {52000, "Versão do ActiveX:"},
    {52001, "Versão do plugin:"},
    {52002, "Não instalado"},
    {53000, "A versão %s do plugin está instalada."},
    {53001, "O plugin não está instalado."},
    // Site lists: column heads, titles, explanations
    {61000, "Site"},
    {61001, "Acesso a câmera e microfone"},
    {61002, "Acesso à rede"},
    {61003, "Acesso ao armazenamento"},
    {61004, "Espaço usado"},
    {61005, "Configurações da câmera e do microfone para cada site"},
    {61006, "Os sites visitados anteriormente que pediram para usar a câmera ou o microfone estão listados abaixo. Você pode permitir ou bloquear o uso da câmera e do microfone para sites específicos. Remova um site para excluir todas as configurações e todos os dados desse site no Corvane Player."},
    {61007, "Configurações da rede assistida por pares para cada site"},
    {61008, "Os sites visitados anteriormente que pediram para usar a rede assistida por pares estão listados abaixo. Você pode permitir ou bloquear o uso da rede assistida por pares para sites específicos. Remova um site para excluir todas as configurações e todos os dados desse site no Corvane Player."},
    {61009, "Configurações do armazenamento local para cada site"},
    {61010, "Os sites visitados anteriormente que usam o armazenamento local estão listados abaixo. Você pode permitir ou bloquear o uso do armazenamento local para sites específicos. Remova um site para excluir todas as configurações e todos os dados desse site no Corvane Player."},
    {61011, "Quando o site selecionado quiser usar a câmera ou o microfone:"},
    {61012, "Quando o site selecionado quiser usar a rede assistida por pares:"},
    {61013, "Quando o site selecionado quiser usar o armazenamento local:"},
    // Deleting all site data
    {71000, "Excluir todos os dados de sites no Corvane Player"},
    {71001, "Excluir os seguintes itens em todos os navegadores:"},
    {71002, "Excluir todos os dados e configurações de sites"},
    {71003, "Exclui os dados do armazenamento local, as configurações da câmera e do microfone e as configurações da rede assistida por pares. Os sites podem usar o armazenamento local para salvar dados sobre o uso do Corvane Player neste computador, como histórico de visualização, progresso em jogos, trabalhos salvos, preferências ou dados que identificam este computador. Para preservar dados importantes, você pode remover os dados do armazenamento local site por site na aba “Armazenamento”."},
    {71004, "Exclui os dados do armazenamento local, as configurações da câmera e do microfone e as configurações da rede assistida por pares."},
    {71005, "Os sites podem usar o armazenamento local para salvar dados sobre o uso do Corvane Player neste computador, como histórico de visualização, progresso em jogos, trabalhos salvos, preferências ou dados que identificam este computador."},
    {71006, "Para preservar dados importantes, você pode remover os dados do armazenamento local site por site na aba “Armazenamento”."},
    {71007, "Excluir todos os arquivos de licença de áudio e vídeo"},
    {71008, "Exclui todos os arquivos de licença para impedir que o Corvane Player reproduza conteúdo protegido, como filmes e músicas que você tenha alugado ou comprado. Feche todos os navegadores antes de excluir esses arquivos."},
    {71009, "Para limpar todo o histórico de navegação, limpe também os dados de histórico nos seus navegadores."},
    // Trusted locations
    {81000, "Configurações de locais confiáveis"},
    {81001, "Por segurança, o Corvane Player bloqueia o acesso simultâneo do conteúdo aos arquivos deste computador e à internet. Os desenvolvedores podem adicionar abaixo exceções para conteúdo confiável."},
    {81002, "Saiba mais sobre locais confiáveis"},
    {81003, "Arquivo ou pasta confiável"},
    {81004, "Redefinir arquivos de licença"},
    {81005, "Redefinir"},
    // Choosing trusted files and folders
    {82000, "Arquivos KBX (*.kbx)"},
    {82001, "*.kbx"},
    {82002, "Local"},
    {83000, "Escolher a pasta confiável"},
    {83001, "Escolher o arquivo confiável"},
    // Editing a trusted location
    {84000, "Editar local de compatibilidade"},
    {84001, "Confiar neste local e permitir que ele use configurações de segurança compatíveis com o Corvane Player\u00A07:"},
    // Adding a site
    {91000, "Domínio do site:"},
    {91001, "Exemplo: www.example.com, example.com"},
    {92000, "Adicionar site"},
    {92001, "Adicionar configuração de armazenamento local para um site"},
    {92002, "Adicionar configuração de câmera e microfone para um site"},
    {92003, "Adicionar configuração de rede assistida por pares para um site"},
};
// clang-format on

}  // namespace NCPStrings

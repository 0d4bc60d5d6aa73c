// French texts. Address: formal ("vous"), infinitives on buttons and choices.
// Quotation marks «…» and apostrophe ’; a no-break space (U+00A0) before a
// colon, inside the quotation marks and before a unit; no blank before an
// ellipsis.
//
// Glossary, used by every row:
//   site ......................... site, site web
//   local storage ................ stockage local
//   setting ...................... paramètre
//   allow ........................ autoriser
//   block ........................ bloquer
//   ask .......................... demander
//   camera ....................... caméra
//   microphone ................... microphone; micro where it must be short
//   peer-assisted networking ..... réseau assisté par les pairs
//   protected content ............ contenu protégé
//   licence file ................. fichier de licence
//   deauthorise .................. retirer l’autorisation
//   trusted location ............. emplacement de confiance
//   plug-in ...................... plugin
#pragma once

#include "strings/text_row.h"

namespace NCPStrings {

// clang-format off
inline constexpr TextRow kFrenchTexts[] = {
    // Buttons and common words
    {11000, "Valider"},
    {11001, "Annuler"},
    {11002, "Confirmer"},
    {11003, "Fermer"},
    {11004, "Ajouter"},
    {11005, "Ajouter…"},
    {11006, "Tout supprimer…"},
    {11007, "Supprimer les données"},
    {11008, "Retirer l’autorisation"},
    {11009, "Enlever"},
    {11010, "Tout enlever…"},
    {11011, "En savoir plus"},
    {11012, "Ajouter un fichier…"},
    {11013, "Ajouter un dossier…"},
    {11014, "Tout enlever"},
    {11015, "Modifier…"},
    // Permissions in the row of a site; 11103 is Ask as a choice
    {11100, "Bloquer"},
    {11101, "Demander"},
    {11102, "Autoriser"},
    {11103, "Demander l’autorisation"},
    // Titles and the command line
    {11200, "Confirmation requise"},
    {11400, "Préférences de Tessary Corvane Player"},
    {11401, "Indique le nom de la page à afficher %s"},
    {11402, "page"},
    // Files that could not be deleted
    {11500, "Impossible de supprimer les fichiers"},
    {11501, "Corvane Player n’a pas pu supprimer toutes les données du stockage local. Les fichiers sont peut-être verrouillés par un autre programme. Fermez tous les navigateurs ou redémarrez l’ordinateur, puis réessayez."},
    {11502, "Corvane Player n’a pas pu supprimer tous les fichiers de licence. Ils sont peut-être verrouillés par un autre programme. Fermez tous les navigateurs ou redémarrez l’ordinateur, puis réessayez."},
    // The panel's other name
    {12000, "Gestionnaire de paramètres de Corvane Player"},
    // Storage page
    {21000, "Stockage"},
    {21001, "Paramètres du stockage local"},
    {21002, "Les sites web peuvent utiliser le stockage local pour enregistrer des données relatives à l’utilisation de Corvane Player sur cet ordinateur, telles que l’historique de visionnage, la progression dans les jeux, le travail enregistré, les préférences ou des données permettant d’identifier cet ordinateur."},
    {21003, "En savoir plus sur les paramètres de confidentialité"},
    {21004, "Autoriser les sites à enregistrer des informations sur cet ordinateur"},
    {21005, "Me demander avant qu’un nouveau site enregistre des informations sur cet ordinateur"},
    {21006, "Bloquer l’enregistrement d’informations sur cet ordinateur pour tous les sites"},
    {21007, "Paramètres par site du stockage local…"},
    // Disabling local storage; adding a local storage setting for a site
    {21100, "Désactiver le stockage local"},
    {21101, "Si vous bloquez l’enregistrement d’informations pour tous les sites, certains sites web risquent de ne plus fonctionner pleinement. Toutes les données enregistrées par les sites déjà visités seront également supprimées, ce qui peut inclure la progression dans les jeux, les données de connexion, le travail enregistré ou les préférences."},
    {21102, "Si vous bloquez l’enregistrement d’informations pour tous les sites, certains sites web risquent de ne plus fonctionner pleinement."},
    {21103, "Toutes les données enregistrées par les sites déjà visités seront également supprimées, ce qui peut inclure la progression dans les jeux, les données de connexion, le travail enregistré ou les préférences."},
    {21104, "Vous pouvez aussi"},
    {21105, "naviguer temporairement sans enregistrer de données ni d’historique."},
    {21106, "En savoir plus sur les paramètres de confidentialité"},
    {21107, "Ajouter un paramètre de stockage local pour un site"},
    {21108, "Lorsque ce site souhaite utiliser le stockage local\u00A0:"},
    {21109, "Autoriser le site à enregistrer des informations sur cet ordinateur"},
    {21110, "Demander avant d’autoriser le site à enregistrer des informations sur cet ordinateur"},
    {21111, "Bloquer l’enregistrement d’informations sur cet ordinateur pour ce site"},
    // Space used by a site
    {21200, "aucun"},
    {21201, "%d\u00A0octets"},
    {21202, "%d\u00A0ko"},
    {21203, "%.2f\u00A0Mo"},
    {21204, "%.2f\u00A0Go"},
    // Private browsing
    {21300, "Navigation privée"},
    {21301, "Vous pouvez aussi naviguer temporairement sans enregistrer d’historique ni de données dans le stockage local."},
    {21302, "En savoir plus sur la navigation privée"},
    // Camera and Mic page, with radio buttons
    {31000, "Caméra et micro"},
    {31001, "Paramètres de la caméra et du microphone"},
    {31002, "Me demander lorsqu’un site souhaite utiliser la caméra ou le microphone (recommandé)"},
    {31003, "Bloquer l’utilisation de la caméra et du microphone pour tous les sites"},
    {31004, "Paramètres par site de la caméra et du microphone…"},
    {31005, "L’utilisation de la caméra et du microphone est toujours bloquée. Ce comportement est imposé par votre fichier rql.cfg, peut-être à l’initiative de votre administrateur système."},
    {31006, "Ajouter un paramètre de caméra et de microphone pour un site"},
    {31007, "Lorsque ce site souhaite utiliser la caméra ou le microphone\u00A0:"},
    // Playback page: peer-assisted networking
    {41000, "Lecture"},
    {41001, "Réseau assisté par les pairs"},
    {41002, "Le réseau assisté par les pairs permet une lecture multimédia plus fluide ainsi que des fonctionnalités, comme la discussion en ligne, qui se connectent à d’autres ordinateurs. Il peut consommer davantage de bande passante."},
    {41003, "En savoir plus sur le réseau assisté par les pairs"},
    {41004, "Me demander lorsqu’un site souhaite utiliser le réseau assisté par les pairs"},
    {41005, "Bloquer l’utilisation du réseau assisté par les pairs pour tous les sites"},
    {41006, "Paramètres par site du réseau assisté par les pairs…"},
    // Protected content
    {41100, "Contenu protégé"},
    {41101, "Si vous vendez ou donnez cet ordinateur, retirez-lui son autorisation pour empêcher Corvane Player de lire du contenu protégé déjà visionné, comme des films ou de la musique que vous avez achetés."},
    {41102, "En savoir plus sur le contenu protégé"},
    {41103, "Retirer l’autorisation de cet ordinateur…"},
    {41104, "Retirer l’autorisation de cet ordinateur"},
    {41105, "Le retrait de l’autorisation empêche Corvane Player de lire du contenu protégé, comme des films et de la musique que vous avez loués ou achetés. Vous devrez ensuite obtenir de nouvelles licences auprès des fournisseurs de contenu pour lire du contenu protégé dans Corvane Player."},
    {41106, "Fermez tous les navigateurs avant de retirer l’autorisation de votre ordinateur."},
    // Adding a peer-assisted networking setting for a site
    {41200, "Ajouter un paramètre de réseau assisté par les pairs pour un site"},
    {41201, "Lorsque ce site souhaite utiliser le réseau assisté par les pairs\u00A0:"},
    {41202, "Autoriser le site à utiliser le réseau assisté par les pairs (recommandé)"},
    {41203, "Demander avant d’autoriser le site à utiliser le réseau assisté par les pairs"},
    {41204, "Bloquer l’utilisation du réseau assisté par les pairs pour ce site"},
    // Advanced page: browsing data and updates
    {51000, "Avancé"},
    {51100, "Données de navigation et paramètres"},
    {51101, "Supprimez toutes les données du stockage local, les choix enregistrés, les paramètres et les autres données utilisées par le contenu dans Corvane Player, pour tous les navigateurs de cet ordinateur."},
    {51200, "Mises à jour"},
    {51201, "Corvane Player peut rechercher automatiquement les mises à jour afin de contribuer à protéger votre ordinateur. Sans mises à jour, cet ordinateur risque d’être vulnérable aux menaces de sécurité."},
    {51202, "Installer automatiquement les mises à jour lorsqu’elles sont disponibles (recommandé)"},
    {51203, "Ne jamais rechercher de mises à jour (déconseillé)"},
    {51204, "Les mises à jour ne sont jamais recherchées automatiquement. Ce comportement est imposé par votre fichier rql.cfg, peut-être à l’initiative de votre administrateur système."},
    {51205, "Rechercher maintenant"},
    {51206, "Recherchez les mises à jour pour contribuer à protéger votre ordinateur et profiter des dernières améliorations de Corvane Player."},
    {51207, "Modifier les paramètres de mise à jour"},
    {51208, "M’avertir lorsque des mises à jour sont disponibles"},
    {51209, "Rechercher automatiquement les mises à jour (recommandé)"},
    // Installed version of the player
    {51300, "Tessary Corvane Player %s est installé sur cet ordinateur."},
    {51301, "Impossible de déterminer la version de Tessary Corvane Player installée sur cet ordinateur."},
    {51302, "Tessary Corvane Player n’est pas installé sur cet ordinateur."},
    // Developer tools
    {51400, "Outils de développement"},
    {51401, "Indiquez les emplacements de confiance pour les tests de développement."},
    {51402, "Paramètres des emplacements de confiance…"},
    // Versions of the plug-in
    {52000, "Version d’ActiveX\u00A0:"},
    {52001, "Version du plugin\u00A0:"},
    {52002, "Non installé"},
    {53000, "La version %s du plugin est installée."},
    {53001, "Le plugin n’est pas installé."},
    // Site lists: column heads, titles, explanations
    {61000, "Site web"},
    {61001, "Accès caméra et micro"},
    {61002, "Accès au réseau"},
    {61003, "Accès au stockage"},
    {61004, "Espace utilisé"},
    {61005, "Paramètres par site de la caméra et du microphone"},
    {61006, "Les sites web déjà visités qui ont demandé à utiliser la caméra ou le microphone sont répertoriés ci-dessous. Vous pouvez autoriser ou bloquer l’utilisation de la caméra et du microphone pour certains sites. Enlevez un site pour supprimer tous les paramètres et toutes les données de ce site dans Corvane Player."},
    {61007, "Paramètres par site du réseau assisté par les pairs"},
    {61008, "Les sites web déjà visités qui ont demandé à utiliser le réseau assisté par les pairs sont répertoriés ci-dessous. Vous pouvez autoriser ou bloquer l’utilisation du réseau assisté par les pairs pour certains sites. Enlevez un site pour supprimer tous les paramètres et toutes les données de ce site dans Corvane Player."},
    {61009, "Paramètres par site du stockage local"},
    {61010, "Les sites web déjà visités qui utilisent le stockage local sont répertoriés ci-dessous. Vous pouvez autoriser ou bloquer l’utilisation du stockage local pour certains sites. Enlevez un site pour supprimer tous les paramètres et toutes les données de ce site dans Corvane Player."},
    {61011, "Lorsque le site sélectionné souhaite utiliser la caméra ou le microphone\u00A0:"},
    {61012, "Lorsque le site sélectionné souhaite utiliser le réseau assisté par les pairs\u00A0:"},
    {61013, "Lorsque le site sélectionné souhaite utiliser le stockage local\u00A0:"},
    // Deleting all site data
    {71000, "Supprimer toutes les données de sites dans Corvane Player"},
    {71001, "Supprimer les éléments suivants dans tous les navigateurs\u00A0:"},
    {71002, "Supprimer toutes les données et tous les paramètres des sites"},
    {71003, "Supprime les données du stockage local ainsi que les paramètres de la caméra, du microphone et du réseau assisté par les pairs. Les sites web peuvent utiliser le stockage local pour enregistrer des données relatives à l’utilisation de Corvane Player sur cet ordinateur, telles que l’historique de visionnage, la progression dans les jeux, le travail enregistré, les préférences ou des données permettant d’identifier cet ordinateur. Pour conserver les données importantes, vous pouvez supprimer les données du stockage local site par site dans l’onglet «\u00A0Stockage\u00A0»."},
    {71004, "Supprime les données du stockage local ainsi que les paramètres de la caméra, du microphone et du réseau assisté par les pairs."},
    {71005, "Les sites web peuvent utiliser le stockage local pour enregistrer des données relatives à l’utilisation de Corvane Player sur cet ordinateur, telles que l’historique de visionnage, la progression dans les jeux, le travail enregistré, les préférences ou des données permettant d’identifier cet ordinateur."},
    {71006, "Pour conserver les données importantes, vous pouvez supprimer les données du stockage local site par site dans l’onglet «\u00A0Stockage\u00A0»."},
    {71007, "Supprimer tous les fichiers de licence audio et vidéo"},
    {71008, "Supprime tous les fichiers de licence pour empêcher Corvane Player de lire du contenu protégé, comme des films et de la musique que vous avez loués ou achetés. Fermez tous les navigateurs avant de supprimer ces fichiers."},
    {71009, "Pour effacer tout l’historique de navigation, effacez également les données d’historique dans vos navigateurs."},
    // Trusted locations
    {81000, "Paramètres des emplacements de confiance"},
    {81001, "Par mesure de sécurité, Corvane Player empêche le contenu d’accéder à la fois aux fichiers de cet ordinateur et à Internet. Les développeurs peuvent ajouter ci-dessous des exceptions pour le contenu de confiance."},
    {81002, "En savoir plus sur les emplacements de confiance"},
    {81003, "Fichier ou dossier de confiance"},
    {81004, "Réinitialiser les fichiers de licence"},
    {81005, "Réinitialiser"},
    // Choosing trusted files and folders
    {82000, "Fichiers KBX (*.kbx)"},
    {82001, "*.kbx"},
    {82002, "Emplacement"},
    {83000, "Sélectionner un dossier de confiance"},
    {83001, "Sélectionner un fichier de confiance"},
    // Editing a trusted location
    {84000, "Modifier l’emplacement de compatibilité"},
    {84001, "Faire confiance à cet emplacement et l’autoriser à utiliser des paramètres de sécurité compatibles avec Corvane Player\u00A07\u00A0:"},
    // Adding a site
    {91000, "Domaine du site web\u00A0:"},
    {91001, "Exemple\u00A0: www.example.com, example.com"},
    {92000, "Ajouter un site"},
    {92001, "Ajouter un paramètre de stockage local pour un site"},
    {92002, "Ajouter un paramètre de caméra et de microphone pour un site"},
    {92003, "Ajouter un paramètre de réseau assisté par les pairs pour un site"},
};
// clang-format on

}  // namespace NCPStrings

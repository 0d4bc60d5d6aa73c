// Spanish texts. Address: formal ("usted"), infinitives on buttons and choices;
// neutral wording ("equipo") for Spain and the Americas.
// Quotation marks «…», no blank before an ellipsis or a colon.
//
// Glossary, used by every row:
//   site ......................... sitio, sitio web
//   local storage ................ almacenamiento local
//   setting ...................... configuración
//   allow ........................ permitir
//   block ........................ bloquear
//   ask .......................... preguntar
//   camera ....................... cámara
//   microphone ................... micrófono
//   peer-assisted networking ..... red asistida por pares
//   protected content ............ contenido protegido
//   licence file ................. archivo de licencia
//   deauthorise .................. desautorizar
//   trusted location ............. ubicación de confianza
//   plug-in ...................... plugin
#pragma once

#include "strings/text_row.h"

namespace NCPStrings {

// clang-format off
inline constexpr TextRow kSpanishTexts[] = {
    // Buttons and common words
    {11000, "Aceptar"},
    {11001, "Cancelar"},
    {11002, "Confirmar"},
    {11003, "Cerrar"},
    {11004, "Añadir"},
    {11005, "Añadir…"},
    {11006, "Eliminar todo…"},
    {11007, "Eliminar datos"},
    {11008, "Desautorizar"},
    {11009, "Quitar"},
    {11010, "Quitar todo…"},
    {11011, "Más información"},
    {11012, "Añadir archivo…"},
    {11013, "Añadir carpeta…"},
    {11014, "Quitar todo"},
    {11015, "Editar…"},
    // Permissions in the row of a site; 11103 is Ask as a choice
    {11100, "Bloquear"},
    {11101, "Preguntar"},
    {11102, "Permitir"},
    {11103, "Pedir permiso"},
    // Titles and the command line
    {11200, "Confirmación necesaria"},
    {11400, "Preferencias de Tessary Corvane Player"},
    {11401, "Especificar el nombre de la página que se mostrará %s"},
    {11402, "página"},
    // Files that could not be deleted
    {11500, "No se pudieron eliminar los archivos"},
    {11501, "Corvane Player no pudo eliminar todos los datos del almacenamiento local. Es posible que otro programa tenga bloqueados los archivos. Cierre todos los navegadores o reinicie el equipo e inténtelo de nuevo."},
    {11502, "Corvane Player no pudo eliminar todos los archivos de licencia. Es posible que otro programa los tenga bloqueados. Cierre todos los navegadores o reinicie el equipo e inténtelo de nuevo."},
    // The panel's other name
    {12000, "Gestor de configuración de Corvane Player"},
    // Storage page
    {21000, "Almacenamiento"},
    {21001, "Configuración del almacenamiento local"},
    {21002, "Los sitios web pueden usar el almacenamiento local para guardar datos sobre el uso de Corvane Player en este equipo, como el historial de visualización, el progreso en los juegos, el trabajo guardado, las preferencias o datos que identifican este equipo."},
    {21003, "Más información sobre los controles de privacidad"},
    {21004, "Permitir que los sitios guarden información en este equipo"},
    {21005, "Preguntarme antes de permitir que sitios nuevos guarden información en este equipo"},
    {21006, "Bloquear el almacenamiento de información en este equipo para todos los sitios"},
    {21007, "Configuración por sitio del almacenamiento local…"},
    // Disabling local storage; adding a local storage setting for a site
    {21100, "Desactivar el almacenamiento local"},
    {21101, "Si bloquea el almacenamiento de información para todos los sitios, es posible que algunas funciones no estén disponibles en determinados sitios web. También se eliminarán todos los datos guardados por los sitios visitados anteriormente, entre los que puede haber progreso en los juegos, datos de inicio de sesión, trabajo guardado o preferencias."},
    {21102, "Si bloquea el almacenamiento de información para todos los sitios, es posible que algunas funciones no estén disponibles en determinados sitios web."},
    {21103, "También se eliminarán todos los datos guardados por los sitios visitados anteriormente, entre los que puede haber progreso en los juegos, datos de inicio de sesión, trabajo guardado o preferencias."},
    {21104, "Si lo prefiere, puede"},
    {21105, "navegar temporalmente sin guardar datos ni historial."},
    {21106, "Más información sobre los controles de privacidad"},
    {21107, "Añadir configuración de almacenamiento local para un sitio"},
    {21108, "Cuando este sitio quiera usar el almacenamiento local:"},
    {21109, "Permitir que el sitio guarde información en este equipo"},
    {21110, "Preguntar antes de permitir que el sitio guarde información en este equipo"},
    {21111, "Bloquear el almacenamiento de información en este equipo para este sitio"},
    // Space used by a site
    {21200, "ninguno"},
    {21201, "%d\u00A0bytes"},
    {21202, "%d\u00A0kB"},
    {21203, "%.2f\u00A0MB"},
    {21204, "%.2f\u00A0GB"},
    // Private browsing
    {21300, "Navegación privada"},
    {21301, "Si lo prefiere, puede navegar temporalmente sin guardar historial ni datos en el almacenamiento local."},
    {21302, "Más información sobre la navegación privada"},
    // Camera and Mic page, with radio buttons
    {31000, "Cámara y micrófono"},
    {31001, "Configuración de la cámara y el micrófono"},
    {31002, "Preguntarme cuando un sitio quiera usar la cámara o el micrófono (recomendado)"},
    {31003, "Bloquear el uso de la cámara y el micrófono para todos los sitios"},
    {31004, "Configuración por sitio de la cámara y el micrófono…"},
    {31005, "El uso de la cámara y el micrófono está siempre bloqueado. Así lo establece el archivo rql.cfg, posiblemente por decisión del administrador del sistema."},
    {31006, "Añadir configuración de cámara y micrófono para un sitio"},
    {31007, "Cuando este sitio quiera usar la cámara o el micrófono:"},
    // Playback page: peer-assisted networking
    {41000, "Reproducción"},
    {41001, "Red asistida por pares"},
    {41002, "La red asistida por pares permite una reproducción multimedia más fluida y funciones, como el chat, que se conectan a otros equipos. Puede consumir más ancho de banda."},
    {41003, "Más información sobre la red asistida por pares"},
    {41004, "Preguntarme cuando un sitio quiera usar la red asistida por pares"},
    {41005, "Bloquear el uso de la red asistida por pares para todos los sitios"},
    {41006, "Configuración por sitio de la red asistida por pares…"},
    // Protected content
    {41100, "Contenido protegido"},
    {41101, "Si va a vender o donar este equipo, desautorícelo para impedir que Corvane Player reproduzca contenido protegido visto anteriormente, como películas o música que haya comprado."},
    {41102, "Más información sobre el contenido protegido"},
    {41103, "Desautorizar este equipo…"},
    {41104, "Desautorizar este equipo"},
    {41105, "La desautorización impide que Corvane Player reproduzca contenido protegido, como películas y música que haya alquilado o comprado. Después de desautorizar el equipo, deberá obtener nuevas licencias de los proveedores de contenido para reproducir contenido protegido en Corvane Player."},
    {41106, "Cierre todos los navegadores antes de desautorizar el equipo."},
    // Adding a peer-assisted networking setting for a site
    {41200, "Añadir configuración de red asistida por pares para un sitio"},
    {41201, "Cuando este sitio quiera usar la red asistida por pares:"},
    {41202, "Permitir que el sitio use la red asistida por pares (recomendado)"},
    {41203, "Preguntar antes de permitir que el sitio use la red asistida por pares"},
    {41204, "Bloquear el uso de la red asistida por pares para este sitio"},
    // Advanced page: browsing data and updates
    {51000, "Avanzado"},
    {51100, "Datos de navegación y configuración"},
    {51101, "Elimine todos los datos del almacenamiento local, las decisiones guardadas, la configuración y otros datos que usa el contenido de Corvane Player en todos los navegadores de este equipo."},
    {51200, "Actualizaciones"},
    {51201, "Corvane Player puede buscar actualizaciones automáticamente para ayudar a proteger el equipo. Si no se actualiza, este equipo puede quedar expuesto a amenazas de seguridad."},
    {51202, "Instalar las actualizaciones automáticamente cuando estén disponibles (recomendado)"},
    {51203, "No buscar nunca actualizaciones (no recomendado)"},
    {51204, "Nunca se buscan actualizaciones automáticamente. Así lo establece el archivo rql.cfg, posiblemente por decisión del administrador del sistema."},
    {51205, "Buscar ahora"},
    {51206, "Busque actualizaciones para ayudar a proteger el equipo y aprovechar las nuevas mejoras de Corvane Player."},
    {51207, "Cambiar la configuración de actualización"},
    {51208, "Notificarme cuando haya actualizaciones disponibles"},
    {51209, "Buscar actualizaciones automáticamente (recomendado)"},
    // Installed version of the player
    {51300, "Tessary Corvane Player %s está instalado en este equipo."},
    {51301, "No se pudo determinar la versión de Tessary Corvane Player instalada en este equipo."},
    {51302, "Tessary Corvane Player no está instalado en este equipo."},
    // Developer tools
    {51400, "Herramientas de desarrollo"},
    {51401, "Especifique ubicaciones de confianza para las pruebas de desarrollo."},
    {51402, "Configuración de ubicaciones de confianza…"},
    // Versions of the plug-in
    {52000, "Versión de ActiveX:"},
    {52001, "Versión del plugin:"},
    {52002, "No instalado"},
    {53000, "La versión %s del plugin está instalada."},
    {53001, "El plugin no está instalado."},
    // Site lists: column heads, titles, explanations
    {61000, "Sitio web"},
    {61001, "Acceso a cámara y micrófono"},
    {61002, "Acceso a la red"},
    {61003, "Acceso al almacenamiento"},
    {61004, "Espacio usado"},
    {61005, "Configuración por sitio de la cámara y el micrófono"},
    {61006, "A continuación se muestran los sitios web visitados anteriormente que han solicitado usar la cámara o el micrófono. Puede permitir o bloquear el uso de la cámara y el micrófono para sitios concretos. Quite un sitio para eliminar toda la configuración y todos los datos de ese sitio en Corvane Player."},
    {61007, "Configuración por sitio de la red asistida por pares"},
    {61008, "A continuación se muestran los sitios web visitados anteriormente que han solicitado usar la red asistida por pares. Puede permitir o bloquear el uso de la red asistida por pares para sitios concretos. Quite un sitio para eliminar toda la configuración y todos los datos de ese sitio en Corvane Player."},
    {61009, "Configuración por sitio del almacenamiento local"},
    {61010, "A continuación se muestran los sitios web visitados anteriormente que usan el almacenamiento local. Puede permitir o bloquear el uso del almacenamiento local para sitios concretos. Quite un sitio para eliminar toda la configuración y todos los datos de ese sitio en Corvane Player."},
    {61011, "Cuando el sitio seleccionado quiera usar la cámara o el micrófono:"},
    {61012, "Cuando el sitio seleccionado quiera usar la red asistida por pares:"},
    {61013, "Cuando el sitio seleccionado quiera usar el almacenamiento local:"},
    // Deleting all site data
    {71000, "Eliminar todos los datos de sitios en Corvane Player"},
    {71001, "Eliminar los siguientes elementos en todos los navegadores:"},
    {71002, "Eliminar todos los datos y la configuración de los sitios"},
    {71003, "Elimina los datos del almacenamiento local y la configuración de la cámara, del micrófono y de la red asistida por pares. Los sitios web pueden usar el almacenamiento local para guardar datos sobre el uso de Corvane Player en este equipo, como el historial de visualización, el progreso en los juegos, el trabajo guardado, las preferencias o datos que identifican este equipo. Para conservar los datos importantes, puede eliminar los datos del almacenamiento local sitio por sitio en la pestaña «Almacenamiento»."},
    {71004, "Elimina los datos del almacenamiento local y la configuración de la cámara, del micrófono y de la red asistida por pares."},
    {71005, "Los sitios web pueden usar el almacenamiento local para guardar datos sobre el uso de Corvane Player en este equipo, como el historial de visualización, el progreso en los juegos, el trabajo guardado, las preferencias o datos que identifican este equipo."},
    {71006, "Para conservar los datos importantes, puede eliminar los datos del almacenamiento local sitio por sitio en la pestaña «Almacenamiento»."},
    {71007, "Eliminar todos los archivos de licencia de audio y vídeo"},
    {71008, "Elimina todos los archivos de licencia para impedir que Corvane Player reproduzca contenido protegido, como películas y música que haya alquilado o comprado. Cierre todos los navegadores antes de eliminar estos archivos."},
    {71009, "Para borrar todo el historial de navegación, borre también los datos del historial en los navegadores."},
    // Trusted locations
    {81000, "Configuración de ubicaciones de confianza"},
    {81001, "Por seguridad, Corvane Player impide que el contenido acceda al mismo tiempo a los archivos de este equipo y a Internet. Los desarrolladores pueden añadir a continuación excepciones para contenido de confianza."},
    {81002, "Más información sobre las ubicaciones de confianza"},
    {81003, "Archivo o carpeta de confianza"},
    {81004, "Restablecer archivos de licencia"},
    {81005, "Restablecer"},
    // Choosing trusted files and folders
    {82000, "Archivos KBX (*.kbx)"},
    {82001, "*.kbx"},
    {82002, "Ubicación"},
    {83000, "Seleccionar una carpeta de confianza"},
    {83001, "Seleccionar un archivo de confianza"},
    // Editing a trusted location
    {84000, "Editar ubicación de compatibilidad"},
    {84001, "Confiar en esta ubicación y permitir que use una configuración de seguridad compatible con Corvane Player\u00A07:"},
    // Adding a site
    {91000, "Dominio del sitio web:"},
    {91001, "Ejemplo: www.example.com, example.com"},
    {92000, "Añadir sitio"},
    {92001, "Añadir configuración de almacenamiento local para un sitio"},
    {92002, "Añadir configuración de cámara y micrófono para un sitio"},
    {92003, "Añadir configuración de red asistida por pares para un sitio"},
};
// clang-format on

}  // namespace NCPStrings

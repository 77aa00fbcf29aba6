// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/database/sample/words.h"

#include <array>

namespace dn::host::sample {
namespace {

using namespace std::string_view_literals;

constexpr std::array agentWords{
    "Adriana Zenteno Cruz"sv,  "Beatriz Ocaña Núñez"sv,     "Carlos Ávila Pérez"sv,
    "Diana Marroquín Solís"sv, "Ernesto Gutiérrez Ruiz"sv,  "Fabiola Domínguez Toledo"sv,
    "Gerardo Íñiguez Vela"sv,  "Hilda Muñoz Castellanos"sv, "Ignacio Ruiz O'Farrill"sv,
    "Julia Sánchez Albores"sv, "Karla Peña Coutiño"sv,      "Luis Ángel Esponda Trujillo"sv,
};

constexpr std::array givenNameWords{
    "María"sv,        "José Luis"sv, "Guadalupe"sv, "Juan Carlos"sv, "Ana Sofía"sv, "Jesús"sv,  "Verónica"sv,
    "Miguel Ángel"sv, "Rocío"sv,     "Óscar"sv,     "Lucía"sv,       "Raúl"sv,      "Inés"sv,   "Begoña"sv,
    "Íñigo"sv,        "Toño"sv,      "Patricia"sv,  "Fernando"sv,    "Alejandra"sv, "Héctor"sv, "Mónica"sv,
    "Víctor Hugo"sv,  "Leticia"sv,   "Sergio"sv,    "Andrés"sv,      "Rebeca"sv,    "Martín"sv, "Graciela"sv,
    "Nicolás"sv,      "Elena"sv,     "Ramón"sv,     "Claudia"sv,     "Julián"sv,    "Teresa"sv, "Benjamín"sv,
    "Ximena"sv,       "Ulises"sv,    "Nayeli"sv,    "Cuauhtémoc"sv,  "Itzel"sv,
};

constexpr std::array surnameWords{
    "Hernández"sv, "García"sv,    "Martínez"sv, "López"sv,     "González"sv,  "Pérez"sv,   "Rodríguez"sv,
    "Sánchez"sv,   "Ramírez"sv,   "Cruz"sv,     "Flores"sv,    "Gómez"sv,     "Morales"sv, "Vázquez"sv,
    "Reyes"sv,     "Jiménez"sv,   "Torres"sv,   "Díaz"sv,      "Gutiérrez"sv, "Ruiz"sv,    "Mendoza"sv,
    "Aguilar"sv,   "Ortiz"sv,     "Moreno"sv,   "Castillo"sv,  "Romero"sv,    "Álvarez"sv, "Méndez"sv,
    "Chávez"sv,    "Rivera"sv,    "Juárez"sv,   "Ramos"sv,     "Domínguez"sv, "Herrera"sv, "Medina"sv,
    "Castro"sv,    "Vargas"sv,    "Guzmán"sv,   "Velázquez"sv, "Muñoz"sv,     "Rojas"sv,   "Contreras"sv,
    "Salazar"sv,   "Luna"sv,      "Ortega"sv,   "Núñez"sv,     "Peña"sv,      "Ibáñez"sv,  "Zúñiga"sv,
    "Treviño"sv,   "O'Higgins"sv, "D'Angelo"sv, "Coutiño"sv,   "Albores"sv,   "Zebadúa"sv, "Argüello"sv,
};

constexpr std::array companyKindWords{
    "Ferretería"sv,    "Papelería"sv,        "Clínica"sv,       "Librería"sv, "Colegio"sv,     "Constructora"sv,
    "Distribuidora"sv, "Farmacia"sv,         "Refaccionaria"sv, "Despacho"sv, "Consultorio"sv, "Hotel"sv,
    "Restaurante"sv,   "Comercializadora"sv, "Taller"sv,        "Imprenta"sv, "Transportes"sv, "Laboratorio"sv,
};

constexpr std::array companyNameWords{
    "del Sureste"sv,  "La Ceiba"sv,    "San Cristóbal"sv, "El Águila"sv,    "Grijalva"sv,    "Niño Jesús"sv,
    "Los Ángeles"sv,  "Montebello"sv,  "Año Nuevo"sv,     "O'Higgins"sv,    "La Cañada"sv,   "Peñasco"sv,
    "Santa Fe"sv,     "Pingüino"sv,    "Tres Hermanos"sv, "Quetzal"sv,      "El Sumidero"sv, "Marimba & Co."sv,
    "Don Goyo"sv,     "Jaguar 2000"sv, "Acuña"sv,         "La Esperanza"sv, "Soconusco"sv,   "Bonampak"sv,
    R"("El Faro")"sv, "Usumacinta"sv,
};

constexpr std::array companyFormWords{
    "S.A. de C.V."sv, "S. de R.L. de C.V."sv, "S.C."sv, "y Asociados"sv, "e Hijos"sv, "A.C."sv, ""sv, ""sv,
};

constexpr std::array jobTitleWords{
    "Director general"sv,       "Gerente de compras"sv,   "Contador"sv,
    "Jefa de sistemas"sv,       "Administradora"sv,       "Dueño"sv,
    "Auxiliar contable"sv,      "Bibliotecario"sv,        "Médico"sv,
    "Coordinadora académica"sv, "Ingeniero de soporte"sv, "Recepcionista"sv,
    "Gerente de operaciones"sv, "Subdirectora"sv,         "Consultor"sv,
};

constexpr std::array streetWords{
    "Av. Central Poniente"sv, "Calle 5 de Mayo"sv,    "Blvd. Belisario Domínguez"sv, "1a. Norte Oriente"sv,
    "Av. Insurgentes"sv,      "Calle Hidalgo"sv,      "Privada Los Laureles"sv,      "Calzada al Sumidero"sv,
    "Av. Juárez"sv,           "Calle Niños Héroes"sv, "Paseo de la Reforma"sv,       "Libramiento Sur"sv,
};

constexpr std::array quarterWords{
    "Centro"sv,   "Las Granjas"sv, "El Retiro"sv,        "Moctezuma"sv, "Terán"sv,     "Jardines de Tuxtla"sv,
    "San José"sv, "La Salle"sv,    "Bienestar Social"sv, "Xamaipak"sv,  "Del Valle"sv, "Lomas Verdes"sv,
};

constexpr std::array cityWords{
    City{"Tuxtla Gutiérrez", "Chiapas"},
    City{"San Cristóbal de las Casas", "Chiapas"},
    City{"Tapachula", "Chiapas"},
    City{"Comitán de Domínguez", "Chiapas"},
    City{"Chiapa de Corzo", "Chiapas"},
    City{"Palenque", "Chiapas"},
    City{"Villahermosa", "Tabasco"},
    City{"Cárdenas", "Tabasco"},
    City{"Mérida", "Yucatán"},
    City{"Valladolid", "Yucatán"},
    City{"Cancún", "Quintana Roo"},
    City{"Chetumal", "Quintana Roo"},
    City{"Playa del Carmen", "Quintana Roo"},
    City{"Campeche", "Campeche"},
    City{"Ciudad del Carmen", "Campeche"},
    City{"Oaxaca de Juárez", "Oaxaca"},
    City{"Salina Cruz", "Oaxaca"},
    City{"Juchitán de Zaragoza", "Oaxaca"},
    City{"Veracruz", "Veracruz"},
    City{"Xalapa", "Veracruz"},
    City{"Coatzacoalcos", "Veracruz"},
    City{"Orizaba", "Veracruz"},
    City{"Puebla", "Puebla"},
    City{"Tehuacán", "Puebla"},
    City{"Tlaxcala", "Tlaxcala"},
    City{"Ciudad de México", "Distrito federal"},
    City{"Coyoacán", "Distrito federal"},
    City{"Toluca", "México"},
    City{"Naucalpan", "México"},
    City{"Cuernavaca", "Morelos"},
    City{"Cuautla", "Morelos"},
    City{"Acapulco", "Guerrero"},
    City{"Chilpancingo", "Guerrero"},
    City{"Pachuca", "Hidalgo"},
    City{"Tulancingo", "Hidalgo"},
    City{"Querétaro", "Querétaro"},
    City{"San Juan del Río", "Querétaro"},
    City{"León", "Guanajuato"},
    City{"Irapuato", "Guanajuato"},
    City{"Celaya", "Guanajuato"},
    City{"Morelia", "Michoacán de Ocampo"},
    City{"Uruapan", "Michoacán de Ocampo"},
    City{"Guadalajara", "Jalisco"},
    City{"Zapopan", "Jalisco"},
    City{"Puerto Vallarta", "Jalisco"},
    City{"Tepic", "Nayarit"},
    City{"Colima", "Colima"},
    City{"Manzanillo", "Colima"},
    City{"Aguascalientes", "Aguascalientes"},
    City{"San Luis Potosí", "San Luis Potosí"},
    City{"Zacatecas", "Zacatecas"},
    City{"Durango", "Durango"},
    City{"Culiacán", "Sinaloa"},
    City{"Mazatlán", "Sinaloa"},
    City{"Hermosillo", "Sonora"},
    City{"Ciudad Obregón", "Sonora"},
    City{"Tijuana", "Baja California Norte"},
    City{"La Paz", "Baja California Sur"},
    City{"Chihuahua", "Chihuahua"},
    City{"Saltillo", "Coahuila"},
    City{"Monterrey", "Nuevo León"},
    City{"Ciudad Victoria", "Tamaulipas"},
};

constexpr std::array countryWords{
    "España"sv,
    "Argentina"sv,
    "Bolivia"sv,
    "Brasil"sv,
    "Chile"sv,
    "Colombia"sv,
    "Costa Rica"sv,
    "Ecuador"sv,
    "Guatemala"sv,
    "Honduras"sv,
    "Panamá"sv,
    "Perú"sv,
    "Uruguay"sv,
    "República Dominicana"sv,
    "- Otros paises -"sv,
};

constexpr std::array mailHostWords{
    "example.com"sv, "example.org"sv, "example.net"sv, "correo.example"sv, "empresa.example"sv,
};

constexpr std::array interestWords{
    "Tallyra"sv,
    "Brelvo"sv,
    "Lectoria"sv,
    "Curanda"sv,
    "Folianta"sv,
    "Netoria"sv,
    "Punto de venta"sv,
    "Facturación electrónica"sv,
    "Curso de capacitación"sv,
    "Póliza de soporte"sv,
};

constexpr std::array interestLinkWords{
    "descargas.example.com/download/tallyra"sv,
    "descargas.example.com/download/brelvo"sv,
    "descargas.example.com/download/lectoria"sv,
    "descargas.example.com/download/curanda?v=4.2"sv,
    "descargas.example.com/download/folianta"sv,
    "descargas.example.com/netoria/download"sv,
    "http://descargas.example.com/Download/Tallyra/setup.exe"sv,
    "http://descargas.example.com/netoria/download?lang=es"sv,
    "descargas.example.com/download/otro-producto"sv,
};

constexpr std::array webLinkWords{
    "http://descargas.example.com/tallyra?Demostracion_en_linea"sv,
    "descargas.example.com/tallyra?Demostracion_en_linea"sv,
    "http://descargas.example.com/cursos?Curso_Gratis"sv,
    "descargas.example.com/netoria?curso_gratis&mes=3"sv,
    "http://descargas.example.com/download/tallyra"sv,
    "http://descargas.example.com/brelvo/gracias.html"sv,
    "http://descargas.example.com/"sv,
    "http://buscador.example.net/?q=sistema+de+ventas"sv,
};

constexpr std::array originWords{
    "Llamada entrante"sv,        "Expo Negocios Tuxtla"sv,   "Visita a la oficina"sv, "Formulario del sitio web"sv,
    "Tarjeta de presentación"sv, "Base de datos comprada"sv, "Redes sociales"sv,
};

constexpr std::array referralWords{
    "Un cliente"sv,          "Anuncio en el periódico"sv, "Buscador de Internet"sv, "Radio"sv,
    "Un amigo o familiar"sv, "Cámara de comercio"sv,      "Espectacular"sv,
};

constexpr std::array remarkWords{
    "Pide cotización para 5 usuarios."sv,
    "Llamar por la mañana, antes de las 11."sv,
    "Ya usa un sistema de la competencia y quiere cambiar."sv,
    "Interesado en la versión para red; preguntar por el número de sucursales."sv,
    "No tiene Internet en la bodega."sv,
    "Prefiere que le escriban por correo 📧"sv,
    "Viene recomendado por la Sra. O'Higgins."sv,
    "Quiere una demostración el próximo mes 👍"sv,
    "Año fiscal nuevo: decide en enero."sv,
    "Preguntó por descuentos para escuelas: 20% o más."sv,
    ""sv,
};

constexpr std::array discardReasonWords{
    "Datos falsos"sv,     "Número equivocado"sv, "Duplicado"sv, "Es estudiante, sólo quería información"sv,
    "La empresa cerró"sv, "Competencia"sv,
};

constexpr std::array noInterestReasonWords{
    "Compró otro sistema"sv,
    "No tiene presupuesto este año"sv,
    "Muy caro"sv,
    "Lo hará él mismo en una hoja de cálculo"sv,
    "Ya no trabaja en la empresa"sv,
};

constexpr std::array callSummaryWords{
    "Se le explicó el producto; pide cotización por correo."sv,
    "Acepta demostración en línea la próxima semana."sv,
    "Está comparando precios, volver a llamar en quince días."sv,
    "Quedó de consultarlo con su socio."sv,
    "Ya recibió la cotización, le pareció bien 👍"sv,
    "Pidió hablar con el área técnica sobre la migración de datos."sv,
    "Quiere factura a nombre de otra razón social."sv,
};

constexpr std::array noteWords{
    "Se envió un mensaje de correo electrónico"sv,
    "Mandó sus datos fiscales."sv,
    "Pasar a su oficina cuando se visite la zona."sv,
    "El niño contesta el teléfono, insistir por la tarde."sv,
    "Solicitó catálogo impreso."sv,
    "Renovará su póliza en diciembre."sv,
};

constexpr std::array goalWords{
    "Primera entrevista"sv, "Demostración del producto"sv, "Cotización aceptada"sv, "Negociación"sv,
    "Cierre de venta"sv,    "Renovación de póliza"sv,      "Capacitación"sv,        "Otro"sv,
    "Otros servicios"sv,    "~Meta fuera de uso"sv,
};

constexpr std::array activityKindWords{
    "Llamada"sv, "Visita"sv, "Demostración"sv, "Cotización"sv, "Correo"sv, "Reunión"sv, "Seguimiento"sv,
};

constexpr std::array activitySubjectWords{
    "Confirmar la cita"sv,
    "Enviar la cotización corregida"sv,
    "Mostrar el módulo de inventarios"sv,
    "Recoger el contrato firmado"sv,
    "Preguntar por la decisión"sv,
    "Revisar los requisitos con sistemas"sv,
    "Capacitar al personal"sv,
    "Cobrar el anticipo"sv,
    "Visitar la sucursal de la Cañada"sv,
};

constexpr std::array projectKindWords{
    "Implantación de Tallyra"sv,    "Licencias de Brelvo"sv,  "Biblioteca con Lectoria"sv,
    "Expediente clínico Curanda"sv, "Archivo con Folianta"sv, "Sitio web con Netoria"sv,
    "Póliza anual de soporte"sv,    "Migración de datos"sv,
};

} // namespace

Words agents() { return agentWords; }
Words givenNames() { return givenNameWords; }
Words surnames() { return surnameWords; }
Words companyKinds() { return companyKindWords; }
Words companyNames() { return companyNameWords; }
Words companyForms() { return companyFormWords; }
Words jobTitles() { return jobTitleWords; }
Words streets() { return streetWords; }
Words quarters() { return quarterWords; }
std::span<const City> cities() { return cityWords; }
Words otherCountries() { return countryWords; }
Words mailHosts() { return mailHostWords; }
Words interests() { return interestWords; }
Words interestLinks() { return interestLinkWords; }
Words webLinks() { return webLinkWords; }
Words origins() { return originWords; }
Words referrals() { return referralWords; }
Words remarks() { return remarkWords; }
Words discardReasons() { return discardReasonWords; }
Words noInterestReasons() { return noInterestReasonWords; }
Words callSummaries() { return callSummaryWords; }
Words notes() { return noteWords; }
Words goals() { return goalWords; }
Words activityKinds() { return activityKindWords; }
Words activitySubjects() { return activitySubjectWords; }
Words projectKinds() { return projectKindWords; }

} // namespace dn::host::sample

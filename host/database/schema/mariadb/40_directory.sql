-- El directorio del anfitrión: agentes, ciudades, organizaciones y personas. Las claves de Agente y de Ejecutivo son
-- una sola serie. No hay claves foráneas: los datos de otros sistemas llegan con huecos, y las listas los muestran.
CREATE TABLE Agente (
    Sys_PK INT NOT NULL AUTO_INCREMENT,
    Nombre VARCHAR(255) NOT NULL,
    Usuario VARCHAR(100) NULL,
    EMail VARCHAR(255) NULL,
    Administrador TINYINT(1) NOT NULL DEFAULT 0,
    PRIMARY KEY (Sys_PK),
    KEY por_nombre (Nombre)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_spanish_ci;

CREATE TABLE Ejecutivo (
    Sys_PK INT NOT NULL AUTO_INCREMENT,
    Nombre VARCHAR(255) NOT NULL,
    PRIMARY KEY (Sys_PK),
    KEY por_nombre (Nombre)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_spanish_ci;

CREATE TABLE Ciudad (
    Sys_PK INT NOT NULL AUTO_INCREMENT,
    Nombre VARCHAR(255) NOT NULL,
    Estado VARCHAR(100) NULL,
    PRIMARY KEY (Sys_PK),
    KEY por_nombre (Nombre)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_spanish_ci;

CREATE TABLE Organizacion (
    Sys_PK INT NOT NULL AUTO_INCREMENT,
    Sys_GUID CHAR(32) NOT NULL DEFAULT (REPLACE(UUID(), '-', '')),
    Sys_DTCreated DATETIME NOT NULL DEFAULT CURRENT_TIMESTAMP,
    Codigo VARCHAR(40) NULL,
    Nombre VARCHAR(255) NULL,
    NomComercial VARCHAR(255) NULL,
    Tel1 VARCHAR(100) NULL,
    Tel2 VARCHAR(100) NULL,
    Tel3 VARCHAR(100) NULL,
    Fax VARCHAR(100) NULL,
    EMail VARCHAR(255) NULL,
    WebSite VARCHAR(255) NULL,
    Domicilio VARCHAR(255) NULL,
    Colonia VARCHAR(255) NULL,
    CodPostal VARCHAR(20) NULL,
    ICiudad INT NULL,
    Nacionalidad VARCHAR(100) NULL,
    IEjecutivo INT NULL,
    Notas TEXT NULL,
    PRIMARY KEY (Sys_PK),
    KEY por_ejecutivo (IEjecutivo),
    KEY por_nombre (Nombre),
    KEY por_comercial (NomComercial)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_spanish_ci;

CREATE TABLE Persona (
    Sys_PK INT NOT NULL AUTO_INCREMENT,
    Sys_GUID CHAR(32) NOT NULL DEFAULT (REPLACE(UUID(), '-', '')),
    Sys_DTCreated DATETIME NOT NULL DEFAULT CURRENT_TIMESTAMP,
    Codigo VARCHAR(40) NULL,
    Nombre VARCHAR(255) NULL,
    Apellido1 VARCHAR(255) NULL,
    Apellido2 VARCHAR(255) NULL,
    EMail VARCHAR(255) NULL,
    EMail2 VARCHAR(255) NULL,
    MSN VARCHAR(255) NULL,
    Tel_Casa VARCHAR(100) NULL,
    Tel_Trabajo VARCHAR(100) NULL,
    Tel_Movil VARCHAR(100) NULL,
    Domicilio VARCHAR(255) NULL,
    Colonia VARCHAR(255) NULL,
    CodPostal VARCHAR(20) NULL,
    ICiudad INT NULL,
    IOrganizacion INT NULL,
    Puesto VARCHAR(255) NULL,
    IEjecutivo INT NULL,
    Notas TEXT NULL,
    PRIMARY KEY (Sys_PK),
    KEY por_ejecutivo (IEjecutivo),
    KEY por_organizacion (IOrganizacion),
    KEY por_nombre (Nombre, Apellido1),
    KEY por_apellido (Apellido1, Nombre)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_spanish_ci;

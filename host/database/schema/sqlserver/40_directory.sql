-- El directorio del anfitrión: agentes, ciudades, organizaciones y personas. Las claves de Agente y de Ejecutivo son
-- una sola serie. No hay claves foráneas: los datos de otros sistemas llegan con huecos, y las listas los muestran.
CREATE TABLE Agente (
    Sys_PK INT NOT NULL IDENTITY(1,1),
    Nombre NVARCHAR(255) NOT NULL,
    Usuario NVARCHAR(100) NULL,
    EMail NVARCHAR(255) NULL,
    Administrador BIT NOT NULL DEFAULT 0,
    PRIMARY KEY (Sys_PK)
);
CREATE INDEX por_nombre ON Agente (Nombre);

CREATE TABLE Ejecutivo (
    Sys_PK INT NOT NULL IDENTITY(1,1),
    Nombre NVARCHAR(255) NOT NULL,
    PRIMARY KEY (Sys_PK)
);
CREATE INDEX por_nombre ON Ejecutivo (Nombre);

CREATE TABLE Ciudad (
    Sys_PK INT NOT NULL IDENTITY(1,1),
    Nombre NVARCHAR(255) NOT NULL,
    Estado NVARCHAR(100) NULL,
    PRIMARY KEY (Sys_PK)
);
CREATE INDEX por_nombre ON Ciudad (Nombre);

CREATE TABLE Organizacion (
    Sys_PK INT NOT NULL IDENTITY(1,1),
    Sys_GUID NCHAR(32) NOT NULL DEFAULT (REPLACE(NEWID(), '-', '')),
    Sys_DTCreated DATETIME NOT NULL DEFAULT CURRENT_TIMESTAMP,
    Codigo NVARCHAR(40) NULL,
    Nombre NVARCHAR(255) NULL,
    NomComercial NVARCHAR(255) NULL,
    Tel1 NVARCHAR(100) NULL,
    Tel2 NVARCHAR(100) NULL,
    Tel3 NVARCHAR(100) NULL,
    Fax NVARCHAR(100) NULL,
    EMail NVARCHAR(255) NULL,
    WebSite NVARCHAR(255) NULL,
    Domicilio NVARCHAR(255) NULL,
    Colonia NVARCHAR(255) NULL,
    CodPostal NVARCHAR(20) NULL,
    ICiudad INT NULL,
    Nacionalidad NVARCHAR(100) NULL,
    IEjecutivo INT NULL,
    Notas NVARCHAR(MAX) NULL,
    PRIMARY KEY (Sys_PK)
);
CREATE INDEX por_ejecutivo ON Organizacion (IEjecutivo);
CREATE INDEX por_nombre ON Organizacion (Nombre);
CREATE INDEX por_comercial ON Organizacion (NomComercial);

CREATE TABLE Persona (
    Sys_PK INT NOT NULL IDENTITY(1,1),
    Sys_GUID NCHAR(32) NOT NULL DEFAULT (REPLACE(NEWID(), '-', '')),
    Sys_DTCreated DATETIME NOT NULL DEFAULT CURRENT_TIMESTAMP,
    Codigo NVARCHAR(40) NULL,
    Nombre NVARCHAR(255) NULL,
    Apellido1 NVARCHAR(255) NULL,
    Apellido2 NVARCHAR(255) NULL,
    EMail NVARCHAR(255) NULL,
    EMail2 NVARCHAR(255) NULL,
    MSN NVARCHAR(255) NULL,
    Tel_Casa NVARCHAR(100) NULL,
    Tel_Trabajo NVARCHAR(100) NULL,
    Tel_Movil NVARCHAR(100) NULL,
    Domicilio NVARCHAR(255) NULL,
    Colonia NVARCHAR(255) NULL,
    CodPostal NVARCHAR(20) NULL,
    ICiudad INT NULL,
    IOrganizacion INT NULL,
    Puesto NVARCHAR(255) NULL,
    IEjecutivo INT NULL,
    Notas NVARCHAR(MAX) NULL,
    PRIMARY KEY (Sys_PK)
);
CREATE INDEX por_ejecutivo ON Persona (IEjecutivo);
CREATE INDEX por_organizacion ON Persona (IOrganizacion);
CREATE INDEX por_nombre ON Persona (Nombre, Apellido1);
CREATE INDEX por_apellido ON Persona (Apellido1, Nombre);

-- Los proyectos de negocio con sus metas y actividades. Hecho = 0 es una actividad pendiente.
CREATE TABLE Meta (
    Sys_PK INT NOT NULL IDENTITY(1,1),
    Descripcion NVARCHAR(255) NOT NULL,
    PRIMARY KEY (Sys_PK)
);

CREATE TABLE mdtpactividad (
    Sys_PK INT NOT NULL IDENTITY(1,1),
    Nombre NVARCHAR(100) NOT NULL,
    PRIMARY KEY (Sys_PK)
);

CREATE TABLE Proyecto (
    Sys_PK INT NOT NULL IDENTITY(1,1),
    Sys_GUID NCHAR(32) NOT NULL DEFAULT (REPLACE(NEWID(), '-', '')),
    Sys_DTCreated DATETIME NOT NULL DEFAULT CURRENT_TIMESTAMP,
    Descripcion NVARCHAR(500) NULL,
    IEjecutivo INT NULL,
    IMeta INT NULL,
    IOrganizacion INT NULL,
    IContacto INT NULL,
    FInicio DATETIME NULL,
    UF_Status1 SMALLINT NULL DEFAULT 1,
    UF_Color SMALLINT NULL,
    UF_monto DECIMAL(17,2) NULL,
    uf_ultimocontac DATETIME NULL,
    uf_ultimointento DATETIME NULL,
    uf_res_ultimointento SMALLINT NULL,
    uf_contactado BIT NULL,
    uf_primercontac DATETIME NULL,
    Notas NVARCHAR(MAX) NULL,
    PRIMARY KEY (Sys_PK)
);
CREATE INDEX por_ejecutivo ON Proyecto (IEjecutivo, UF_Status1, FInicio);
CREATE INDEX por_organizacion ON Proyecto (IOrganizacion);
CREATE INDEX por_contacto ON Proyecto (IContacto);
-- El correo busca el proyecto por su identificador.
CREATE INDEX por_guid ON Proyecto (Sys_GUID);

CREATE TABLE actividad (
    Sys_PK INT NOT NULL IDENTITY(1,1),
    Sys_DTCreated DATETIME NOT NULL DEFAULT CURRENT_TIMESTAMP,
    IProyecto INT NULL,
    ITpActividad INT NULL,
    Asunto NVARCHAR(500) NULL,
    FInicio DATETIME NULL,
    Hecho BIT NOT NULL DEFAULT 0,
    Notas NVARCHAR(MAX) NULL,
    PRIMARY KEY (Sys_PK)
);
CREATE INDEX por_proyecto ON actividad (IProyecto, Hecho, FInicio);

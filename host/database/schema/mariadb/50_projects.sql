-- Los proyectos de negocio con sus metas y actividades. Hecho = 0 es una actividad pendiente.
CREATE TABLE Meta (
    Sys_PK INT NOT NULL AUTO_INCREMENT,
    Descripcion VARCHAR(255) NOT NULL,
    PRIMARY KEY (Sys_PK)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_spanish_ci;

CREATE TABLE mdtpactividad (
    Sys_PK INT NOT NULL AUTO_INCREMENT,
    Nombre VARCHAR(100) NOT NULL,
    PRIMARY KEY (Sys_PK)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_spanish_ci;

CREATE TABLE Proyecto (
    Sys_PK INT NOT NULL AUTO_INCREMENT,
    Sys_GUID CHAR(32) NOT NULL DEFAULT (REPLACE(UUID(), '-', '')),
    Sys_DTCreated DATETIME NOT NULL DEFAULT CURRENT_TIMESTAMP,
    Descripcion VARCHAR(500) NULL,
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
    uf_contactado TINYINT(1) NULL,
    uf_primercontac DATETIME NULL,
    Notas TEXT NULL,
    PRIMARY KEY (Sys_PK),
    KEY por_ejecutivo (IEjecutivo, UF_Status1, FInicio),
    KEY por_organizacion (IOrganizacion),
    KEY por_contacto (IContacto),
    -- El correo busca el proyecto por su identificador.
    KEY por_guid (Sys_GUID)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_spanish_ci;

CREATE TABLE actividad (
    Sys_PK INT NOT NULL AUTO_INCREMENT,
    Sys_DTCreated DATETIME NOT NULL DEFAULT CURRENT_TIMESTAMP,
    IProyecto INT NULL,
    ITpActividad INT NULL,
    Asunto VARCHAR(500) NULL,
    FInicio DATETIME NULL,
    Hecho TINYINT(1) NOT NULL DEFAULT 0,
    Notas TEXT NULL,
    PRIMARY KEY (Sys_PK),
    KEY por_proyecto (IProyecto, Hecho, FInicio)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_spanish_ci;

-- Los prospectos: una fila por persona que llegó por el sitio web o que un agente capturó a mano.
-- Todo lo que el sitio web puede omitir admite nulos o tiene un valor por omisión.
CREATE TABLE ut_icontact (
    Sys_PK INT NOT NULL IDENTITY(1,1),
    Sys_TimeStamp DATETIME NOT NULL DEFAULT CURRENT_TIMESTAMP,
    Sys_GUID NCHAR(32) NOT NULL DEFAULT (REPLACE(NEWID(), '-', '')),
    Sys_DTCreated DATETIME NOT NULL DEFAULT CURRENT_TIMESTAMP,
    Sys_User NVARCHAR(100) NULL,
    Sys_LastUser NVARCHAR(100) NULL,
    Sys_Exported INT NOT NULL DEFAULT 0,
    Sys_DTExported DATETIME NULL,
    Sys_Info NVARCHAR(255) NULL,
    uf_Nombre NVARCHAR(255) NULL,
    uf_EMail NVARCHAR(255) NULL,
    uf_Telefono NVARCHAR(100) NULL,
    uf_Empresa NVARCHAR(255) NULL,
    uf_Puesto NVARCHAR(255) NULL,
    uf_Pais NVARCHAR(100) NULL,
    uf_Estado NVARCHAR(100) NULL,
    uf_Ciudad NVARCHAR(255) NULL,
    uf_Interes NVARCHAR(500) NULL,
    uf_Comentarios NVARCHAR(MAX) NULL,
    uf_Fecha DATE NULL,
    uf_IEjecutivo INT NULL,
    uf_Status SMALLINT NOT NULL DEFAULT 0,
    uf_NotaStatus NVARCHAR(MAX) NULL,
    uf_FechaStatus DATETIME NULL,
    uf_Tipo SMALLINT NULL,
    uf_color SMALLINT NULL,
    uf_Redirect NVARCHAR(500) NULL,
    uf_proxcontac DATETIME NULL,
    uf_ultimocontac DATETIME NULL,
    uf_ultimointento DATETIME NULL,
    uf_res_ultimointento SMALLINT NULL,
    uf_contactado BIT NULL,
    uf_primercontac DATETIME NULL,
    uf_correoverif BIT NULL,
    PRIMARY KEY (Sys_PK)
);
-- La lista de un agente en un estado, ya en su orden, y las dos colas del día.
CREATE INDEX por_ejecutivo ON ut_icontact (uf_IEjecutivo, uf_Status, uf_proxcontac, uf_Fecha);
-- La lista de los no asignados (nulo o 0), que sólo puede entrar por el estado.
CREATE INDEX por_status ON ut_icontact (uf_Status, uf_proxcontac, uf_Fecha, uf_IEjecutivo);
-- El correo y el historial buscan al prospecto por su identificador.
CREATE INDEX por_guid ON ut_icontact (Sys_GUID);

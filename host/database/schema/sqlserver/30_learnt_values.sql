-- Los textos que la captura de prospectos aprende. Cada procedimiento guarda su texto una sola vez y acepta los ya
-- conocidos, sin distinguir mayúsculas. El índice único da además las listas en orden alfabético.
-- El parámetro no tiene longitud: con una, el servidor cortaría en silencio el texto que no quepa.
CREATE TABLE ut_ReferenciaContacto (
    Sys_PK INT NOT NULL IDENTITY(1,1),
    uf_Referencia NVARCHAR(500) NOT NULL,
    PRIMARY KEY (Sys_PK)
);
CREATE UNIQUE INDEX un_texto ON ut_ReferenciaContacto (uf_Referencia);

CREATE TABLE ut_OrigenContacto (
    Sys_PK INT NOT NULL IDENTITY(1,1),
    uf_Origen NVARCHAR(500) NOT NULL,
    PRIMARY KEY (Sys_PK)
);
CREATE UNIQUE INDEX un_texto ON ut_OrigenContacto (uf_Origen);

CREATE TABLE ut_InteresContacto (
    Sys_PK INT NOT NULL IDENTITY(1,1),
    uf_Interes NVARCHAR(500) NOT NULL,
    PRIMARY KEY (Sys_PK)
);
CREATE UNIQUE INDEX un_texto ON ut_InteresContacto (uf_Interes);

CREATE PROCEDURE AddReferenciaContacto @texto NVARCHAR(MAX) AS
    SET NOCOUNT ON
    INSERT INTO ut_ReferenciaContacto (uf_Referencia)
    SELECT @texto WHERE NOT EXISTS
        (SELECT 1 FROM ut_ReferenciaContacto WITH (UPDLOCK, HOLDLOCK) WHERE uf_Referencia = @texto);

CREATE PROCEDURE AddOrigenContacto @texto NVARCHAR(MAX) AS
    SET NOCOUNT ON
    INSERT INTO ut_OrigenContacto (uf_Origen)
    SELECT @texto WHERE NOT EXISTS
        (SELECT 1 FROM ut_OrigenContacto WITH (UPDLOCK, HOLDLOCK) WHERE uf_Origen = @texto);

CREATE PROCEDURE AddInteresContacto @texto NVARCHAR(MAX) AS
    SET NOCOUNT ON
    INSERT INTO ut_InteresContacto (uf_Interes)
    SELECT @texto WHERE NOT EXISTS
        (SELECT 1 FROM ut_InteresContacto WITH (UPDLOCK, HOLDLOCK) WHERE uf_Interes = @texto);

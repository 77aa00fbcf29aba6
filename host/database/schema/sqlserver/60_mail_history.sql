-- Los correos enviados. El identificador es "CT." o "PY." y el Sys_GUID del prospecto o del proyecto.
CREATE TABLE correo_historial (
    Sys_PK INT NOT NULL IDENTITY(1,1),
    identificador NVARCHAR(64) NOT NULL,
    tiempo DATETIME NOT NULL DEFAULT CURRENT_TIMESTAMP,
    remitente NVARCHAR(320) NULL,
    destinatarios NVARCHAR(MAX) NOT NULL,
    asunto NVARCHAR(998) NULL,
    cuerpo NVARCHAR(MAX) NULL,
    id_mensaje NVARCHAR(255) NULL,
    usuario NVARCHAR(100) NULL,
    PRIMARY KEY (Sys_PK)
);
CREATE INDEX por_registro ON correo_historial (identificador, tiempo);

-- Los correos enviados. El identificador es "CT." o "PY." y el Sys_GUID del prospecto o del proyecto.
CREATE TABLE correo_historial (
    Sys_PK INT NOT NULL AUTO_INCREMENT,
    identificador VARCHAR(64) NOT NULL,
    tiempo DATETIME NOT NULL DEFAULT CURRENT_TIMESTAMP,
    remitente VARCHAR(320) NULL,
    destinatarios TEXT NOT NULL,
    asunto VARCHAR(998) NULL,
    cuerpo MEDIUMTEXT NULL,
    id_mensaje VARCHAR(255) NULL,
    usuario VARCHAR(100) NULL,
    PRIMARY KEY (Sys_PK),
    KEY por_registro (identificador, tiempo)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_spanish_ci;

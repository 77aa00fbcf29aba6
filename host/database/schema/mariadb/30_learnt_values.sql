-- Los textos que la captura de prospectos aprende. Cada procedimiento guarda su texto una sola vez y acepta los ya
-- conocidos, sin distinguir mayúsculas. El índice único da además las listas en orden alfabético.
CREATE TABLE ut_ReferenciaContacto (
    Sys_PK INT NOT NULL AUTO_INCREMENT,
    uf_Referencia VARCHAR(500) NOT NULL,
    PRIMARY KEY (Sys_PK),
    UNIQUE KEY un_texto (uf_Referencia)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_spanish_ci;

CREATE TABLE ut_OrigenContacto (
    Sys_PK INT NOT NULL AUTO_INCREMENT,
    uf_Origen VARCHAR(500) NOT NULL,
    PRIMARY KEY (Sys_PK),
    UNIQUE KEY un_texto (uf_Origen)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_spanish_ci;

CREATE TABLE ut_InteresContacto (
    Sys_PK INT NOT NULL AUTO_INCREMENT,
    uf_Interes VARCHAR(500) NOT NULL,
    PRIMARY KEY (Sys_PK),
    UNIQUE KEY un_texto (uf_Interes)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_spanish_ci;

CREATE PROCEDURE AddReferenciaContacto(IN texto VARCHAR(500) CHARACTER SET utf8mb4)
    SQL SECURITY INVOKER
    INSERT IGNORE INTO ut_ReferenciaContacto (uf_Referencia) VALUES (texto);

CREATE PROCEDURE AddOrigenContacto(IN texto VARCHAR(500) CHARACTER SET utf8mb4)
    SQL SECURITY INVOKER
    INSERT IGNORE INTO ut_OrigenContacto (uf_Origen) VALUES (texto);

CREATE PROCEDURE AddInteresContacto(IN texto VARCHAR(500) CHARACTER SET utf8mb4)
    SQL SECURITY INVOKER
    INSERT IGNORE INTO ut_InteresContacto (uf_Interes) VALUES (texto);

-- La bitácora. Nada se corrige ni se borra en ella. Una línea de un proyecto lleva 0 en uf_Iicontact; una de un
-- prospecto no menciona uf_IProy.
CREATE TABLE xt_biticontact (
    Sys_PK INT NOT NULL AUTO_INCREMENT,
    uf_Tiempo DATETIME NOT NULL DEFAULT CURRENT_TIMESTAMP,
    uf_Mensaje MEDIUMTEXT NOT NULL,
    uf_Usuario VARCHAR(100) NULL,
    uf_Iicontact INT NOT NULL DEFAULT 0,
    uf_IProy INT NULL,
    PRIMARY KEY (Sys_PK),
    KEY por_prospecto (uf_Iicontact, uf_Tiempo),
    KEY por_proyecto (uf_IProy, uf_Tiempo)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_spanish_ci;

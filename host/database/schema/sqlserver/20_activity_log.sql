-- La bitácora. Nada se corrige ni se borra en ella. Una línea de un proyecto lleva 0 en uf_Iicontact; una de un
-- prospecto no menciona uf_IProy.
CREATE TABLE xt_biticontact (
    Sys_PK INT NOT NULL IDENTITY(1,1),
    uf_Tiempo DATETIME NOT NULL DEFAULT CURRENT_TIMESTAMP,
    uf_Mensaje NVARCHAR(MAX) NOT NULL,
    uf_Usuario NVARCHAR(100) NULL,
    uf_Iicontact INT NOT NULL DEFAULT 0,
    uf_IProy INT NULL,
    PRIMARY KEY (Sys_PK)
);
CREATE INDEX por_prospecto ON xt_biticontact (uf_Iicontact, uf_Tiempo);
CREATE INDEX por_proyecto ON xt_biticontact (uf_IProy, uf_Tiempo);

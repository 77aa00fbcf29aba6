-- Con qué versión de estos guiones se creó la base. La fila se escribe al final de todo: sin ella la base está a medias.
CREATE TABLE dn_esquema (
    version INT NOT NULL,
    creado DATETIME NOT NULL,
    PRIMARY KEY (version)
);

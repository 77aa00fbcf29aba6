-- Las dos colas del día. Se leen siempre con "where ejecutivo=N": cada mitad entra por su índice de ejecutivo, y un
-- proyecto sale una sola vez, con su actividad pendiente más próxima.
--
-- qhoy: los prospectos recibidos cuyo próximo contacto cae antes de que termine el día, y los proyectos con una
-- actividad pendiente que vence antes de que termine el día.
CREATE VIEW qhoy (ejecutivo, Tipo, Sys_PK, cita, Contacto, empresa, telefono, email) AS
    SELECT c.uf_IEjecutivo, N'Contacto', c.Sys_PK, c.uf_proxcontac, c.uf_Nombre, c.uf_Empresa, c.uf_Telefono,
        c.uf_EMail
    FROM ut_icontact c
    WHERE c.uf_Status = 0 AND c.uf_proxcontac < DATEADD(DAY, 1, CAST(GETDATE() AS DATE))
    UNION ALL
    SELECT p.IEjecutivo, N'Proyecto', p.Sys_PK,
        (SELECT MIN(a.FInicio) FROM actividad a WHERE a.IProyecto = p.Sys_PK AND a.Hecho = 0),
        NULLIF(LTRIM(COALESCE(per.Nombre, N'') + COALESCE(N' ' + per.Apellido1, N'') + COALESCE(N' ' + per.Apellido2, N'')), N''),
        org.Nombre,
        COALESCE(org.Tel1, org.Tel2, org.Tel3, per.Tel_Trabajo, per.Tel_Movil), COALESCE(per.EMail, org.EMail)
    FROM Proyecto p
    LEFT JOIN Organizacion org ON org.Sys_PK = p.IOrganizacion
    LEFT JOIN Persona per ON per.Sys_PK = p.IContacto
    WHERE EXISTS (SELECT 1 FROM actividad v
        WHERE v.IProyecto = p.Sys_PK AND v.Hecho = 0 AND v.FInicio < DATEADD(DAY, 1, CAST(GETDATE() AS DATE)));

-- qatascados: los prospectos recibidos sin próximo contacto, y los proyectos abiertos (estado menor que 5) sin
-- ninguna actividad pendiente. Su cita es nula.
CREATE VIEW qatascados (ejecutivo, Tipo, Sys_PK, cita, Contacto, empresa, telefono, email) AS
    SELECT c.uf_IEjecutivo, N'Contacto', c.Sys_PK, CAST(NULL AS DATETIME), c.uf_Nombre, c.uf_Empresa, c.uf_Telefono,
        c.uf_EMail
    FROM ut_icontact c
    WHERE c.uf_Status = 0 AND c.uf_proxcontac IS NULL
    UNION ALL
    SELECT p.IEjecutivo, N'Proyecto', p.Sys_PK, CAST(NULL AS DATETIME),
        NULLIF(LTRIM(COALESCE(per.Nombre, N'') + COALESCE(N' ' + per.Apellido1, N'') + COALESCE(N' ' + per.Apellido2, N'')), N''),
        org.Nombre,
        COALESCE(org.Tel1, org.Tel2, org.Tel3, per.Tel_Trabajo, per.Tel_Movil), COALESCE(per.EMail, org.EMail)
    FROM Proyecto p
    LEFT JOIN Organizacion org ON org.Sys_PK = p.IOrganizacion
    LEFT JOIN Persona per ON per.Sys_PK = p.IContacto
    WHERE p.UF_Status1 < 5
        AND NOT EXISTS (SELECT 1 FROM actividad v WHERE v.IProyecto = p.Sys_PK AND v.Hecho = 0);

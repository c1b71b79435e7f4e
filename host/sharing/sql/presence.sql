-- Which desk has which node in an editor now, so that others see it before they edit the same. A site that was made
-- before there was this gets it when it is prepared the next time.
--
-- Nothing here lasts: whoever is not connected any more edits nothing. A session holds a lock as long as it is
-- connected; rows of a session without one are left over. No change set depends on any of this.

CREATE UNLOGGED TABLE ko.editing (
    session integer NOT NULL, -- the server's process
    node text NOT NULL,
    "user" text NOT NULL,     -- as the desk says
    station text NOT NULL,
    role text NOT NULL,       -- that connected, whatever the desk says
    PRIMARY KEY (session, node)
);

-- The class of these locks is a number that nothing else takes.
CREATE FUNCTION ko.is_connected(session integer) RETURNS boolean LANGUAGE sql VOLATILE
SET search_path = pg_catalog, pg_temp AS $$
    SELECT EXISTS (
        SELECT FROM pg_locks
        WHERE locktype = 'advisory' AND classid = 1263421765 AND objid = session::oid AND objsubid = 2 AND pid = session
            AND database = (SELECT oid FROM pg_database WHERE datname = current_database()))
$$;

-- This session edits these nodes and no others: {"user": ..., "station": ..., "nodes": [...]}, 100 at most.
CREATE FUNCTION ko.edit(given jsonb) RETURNS void LANGUAGE plpgsql SECURITY DEFINER
SET search_path = pg_catalog, pg_temp AS $$
BEGIN
    PERFORM pg_advisory_xact_lock(1263421765, 0); -- no session's number
    DELETE FROM ko.editing e WHERE e.session = pg_backend_pid() OR NOT ko.is_connected(e.session);
    IF NOT ko.is_connected(pg_backend_pid()) THEN
        PERFORM pg_advisory_lock(1263421765, pg_backend_pid());
    END IF;
    INSERT INTO ko.editing (session, node, "user", station, role)
    SELECT DISTINCT pg_backend_pid(), left(node, 200), left(coalesce(given->>'user', ''), 200),
        left(coalesce(given->>'station', ''), 200), session_user
    FROM jsonb_array_elements_text(given->'nodes') listed (node)
    LIMIT 100;
    PERFORM pg_notify('ko', 'editing');
END
$$;

-- What other sessions edit, as [[node, user, station], ...].
CREATE FUNCTION ko.editors() RETURNS text LANGUAGE sql VOLATILE SECURITY DEFINER
SET search_path = pg_catalog, pg_temp AS $$
    SELECT coalesce(jsonb_agg(jsonb_build_array(e.node, e."user", e.station) ORDER BY e.node, e."user", e.station), '[]')::text
    FROM ko.editing e WHERE e.session <> pg_backend_pid() AND ko.is_connected(e.session)
$$;

REVOKE EXECUTE ON FUNCTION ko.is_connected(integer), ko.edit(jsonb), ko.editors() FROM PUBLIC;
GRANT EXECUTE ON FUNCTION ko.editors() TO ko_viewer;
GRANT EXECUTE ON FUNCTION ko.edit(jsonb) TO ko_editor;

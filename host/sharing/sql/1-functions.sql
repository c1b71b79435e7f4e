-- Through these, and nothing else, desks read and change a site.
--
-- How changes of several desks are merged: different properties of one node merge; of the same property the later one
-- in the order of numbers stays; what is done to a node that is gone stays in the history and changes nothing; a node
-- that is added while it is there gets the values that it was added with.

-- The parts of ko.submit(). In one parcel no node, relation, or setting stands twice, so the lines of a kind are done
-- together.

CREATE FUNCTION ko.remove_relations(parcel bigint) RETURNS void LANGUAGE sql
SET search_path = pg_catalog, pg_temp AS $$
    WITH gone AS (
        DELETE FROM ko.relations r USING ko.lines l, ko.nodes a, ko.nodes b
        WHERE l.number = parcel AND l.kind = 'R' AND l.after IS NULL
            AND a.id = l.id AND b.id = l.before->>'to'
            AND r.source = a.place AND r.destination = b.place AND r.type = (l.before->>'type')::integer
        RETURNING l.position, r.place
    )
    UPDATE ko.lines l SET done = true, before = jsonb_set(l.before, '{place}', to_jsonb(gone.place))
    FROM gone WHERE l.number = parcel AND l.position = gone.position
$$;

CREATE FUNCTION ko.remove_nodes(parcel bigint) RETURNS void LANGUAGE sql
SET search_path = pg_catalog, pg_temp AS $$
    -- Relations of which the desk did not know go with their node.
    WITH going AS (
        SELECT n.place, n.id FROM ko.lines l JOIN ko.nodes n ON n.id = l.id
        WHERE l.number = parcel AND l.kind = 'N' AND l.after IS NULL
    ), gone AS (
        DELETE FROM ko.relations r
        WHERE r.source IN (SELECT place FROM going) OR r.destination IN (SELECT place FROM going)
        RETURNING r.place, r.source, r.destination, r.type
    )
    INSERT INTO ko.lines (number, position, set_id, kind, id, before, done)
    SELECT parcel, row_number() OVER (ORDER BY gone.place) - 1 - count(*) OVER (), p.set_id, 'R', a.id,
        jsonb_build_object('to', b.id, 'type', gone.type, 'place', gone.place), true
    FROM gone JOIN ko.nodes a ON a.place = gone.source JOIN ko.nodes b ON b.place = gone.destination
        JOIN ko.parcels p ON p.number = parcel;

    WITH going AS (
        SELECT l.position, n.place, n.type, n.name FROM ko.lines l JOIN ko.nodes n ON n.id = l.id
        WHERE l.number = parcel AND l.kind = 'N' AND l.after IS NULL
    ), emptied AS (
        DELETE FROM ko.properties p USING going WHERE p.node = going.place RETURNING going.position, p.key, p.value
    ), gone AS (
        DELETE FROM ko.nodes n USING going WHERE n.place = going.place
    ), properties AS (
        SELECT position, jsonb_object_agg(key, value) AS list FROM emptied GROUP BY position
    )
    UPDATE ko.lines l SET done = true, before = jsonb_build_object('name', going.name, 'type', going.type,
        'place', going.place, 'properties', coalesce(properties.list, '{}'))
    FROM going LEFT JOIN properties USING (position)
    WHERE l.number = parcel AND l.position = going.position
$$;

-- A node that comes back has the place that it had: it is as old as it was.
CREATE FUNCTION ko.add_nodes(parcel bigint) RETURNS void LANGUAGE sql
SET search_path = pg_catalog, pg_temp AS $$
    WITH fresh AS (
        SELECT l.position, l.id, l.after, former.place AS former,
            row_number() OVER (PARTITION BY former.place IS NULL ORDER BY l.position) AS nth
        FROM ko.lines l LEFT JOIN LATERAL (
            SELECT (g.before->>'place')::bigint AS place FROM ko.lines g
            WHERE g.kind = 'N' AND g.id = l.id AND g.done AND g.after IS NULL ORDER BY g.number DESC LIMIT 1
        ) former ON true
        WHERE l.number = parcel AND l.kind = 'N' AND l.before IS NULL
            AND NOT EXISTS (SELECT FROM ko.nodes n WHERE n.id = l.id)
    ), counted AS (
        UPDATE ko.site SET node_places = node_places + (SELECT count(*) FROM fresh WHERE former IS NULL)
        RETURNING node_places - (SELECT count(*) FROM fresh WHERE former IS NULL) AS used
    ), placed AS (
        SELECT fresh.position, fresh.id, fresh.after, coalesce(fresh.former, counted.used + fresh.nth) AS place
        FROM fresh, counted
    ), added AS (
        INSERT INTO ko.nodes (place, id, type, name)
        SELECT place, id, (after->>'type')::integer, after->>'name' FROM placed
    ), filled AS (
        INSERT INTO ko.properties (node, key, value)
        SELECT placed.place, p.key, p.value FROM placed, jsonb_each(placed.after->'properties') p
    )
    UPDATE ko.lines l SET done = true, after = jsonb_set(l.after, '{place}', to_jsonb(placed.place))
    FROM placed WHERE l.number = parcel AND l.position = placed.position
$$;

-- Nodes that change, and those that are added while they are there.
CREATE FUNCTION ko.update_nodes(parcel bigint) RETURNS void LANGUAGE sql
SET search_path = pg_catalog, pg_temp AS $$
    WITH target AS (
        SELECT l.position, n.place, n.name, l.before, l.after,
            CASE WHEN l.before->>'name' IS DISTINCT FROM l.after->>'name' THEN l.after->>'name' ELSE n.name END
                AS new_name
        FROM ko.lines l JOIN ko.nodes n ON n.id = l.id
        WHERE l.number = parcel AND l.kind = 'N' AND l.after IS NOT NULL AND NOT l.done
    ), wanted AS (
        SELECT t.position, t.place, p.key, p.value FROM target t, jsonb_each(t.after->'properties') p
        UNION ALL
        SELECT t.position, t.place, key, NULL FROM target t, jsonb_object_keys(t.before->'properties') key
        WHERE NOT (t.after->'properties') ? key
    ), differing AS (
        SELECT w.position, w.place, w.key, p.value AS old, w.value AS new
        FROM wanted w LEFT JOIN ko.properties p ON p.node = w.place AND p.key = w.key
        WHERE p.value IS DISTINCT FROM w.value
    ), emptied AS (
        DELETE FROM ko.properties p USING differing d WHERE p.node = d.place AND p.key = d.key AND d.new IS NULL
    ), filled AS (
        INSERT INTO ko.properties (node, key, value)
        SELECT place, key, new FROM differing WHERE new IS NOT NULL
        ON CONFLICT (node, key) DO UPDATE SET value = excluded.value
    ), renamed AS (
        UPDATE ko.nodes n SET name = t.new_name FROM target t WHERE n.place = t.place AND t.name <> t.new_name
    ), sides AS (
        SELECT position, coalesce(jsonb_object_agg(key, old) FILTER (WHERE old IS NOT NULL), '{}') AS before,
            coalesce(jsonb_object_agg(key, new) FILTER (WHERE new IS NOT NULL), '{}') AS after
        FROM differing GROUP BY position
    )
    UPDATE ko.lines l SET done = true,
        before = jsonb_build_object('name', t.name, 'properties', coalesce(sides.before, '{}')),
        after = jsonb_build_object('name', t.new_name, 'properties', coalesce(sides.after, '{}'))
    FROM target t LEFT JOIN sides USING (position)
    WHERE l.number = parcel AND l.position = t.position AND (t.name <> t.new_name OR sides.position IS NOT NULL)
$$;

-- The order of a node's relations says which one counts. A relation comes last, but one that is put back, which asks
-- for the place that it had, gets that.
CREATE FUNCTION ko.add_relations(parcel bigint) RETURNS void LANGUAGE sql
SET search_path = pg_catalog, pg_temp AS $$
    WITH fresh AS (
        SELECT l.position, l.after, a.place AS source, b.place AS destination, former.place AS former,
            row_number() OVER (PARTITION BY former.place IS NULL ORDER BY l.position) AS nth
        FROM ko.lines l JOIN ko.nodes a ON a.id = l.id JOIN ko.nodes b ON b.id = l.after->>'to'
        LEFT JOIN LATERAL (
            SELECT g.before->'place' AS given, (g.before->>'place')::bigint AS place FROM ko.lines g
            WHERE g.kind = 'R' AND g.id = l.id AND g.done AND g.after IS NULL
                AND g.before->'to' = l.after->'to' AND g.before->'type' = l.after->'type'
            ORDER BY g.number DESC LIMIT 1
        ) former ON former.given = l.after->'place'
        WHERE l.number = parcel AND l.kind = 'R' AND l.before IS NULL AND NOT EXISTS (
            SELECT FROM ko.relations r WHERE r.source = a.place AND r.destination = b.place
                AND r.type = (l.after->>'type')::integer)
    ), counted AS (
        UPDATE ko.site SET relation_places = relation_places + (SELECT count(*) FROM fresh WHERE former IS NULL)
        RETURNING relation_places - (SELECT count(*) FROM fresh WHERE former IS NULL) AS used
    ), placed AS (
        SELECT fresh.*, coalesce(fresh.former, counted.used + fresh.nth) AS place FROM fresh, counted
    ), added AS (
        INSERT INTO ko.relations (place, source, destination, type)
        SELECT place, source, destination, (after->>'type')::integer FROM placed
    )
    UPDATE ko.lines l SET done = true, after = jsonb_set(l.after, '{place}', to_jsonb(placed.place))
    FROM placed WHERE l.number = parcel AND l.position = placed.position
$$;

CREATE FUNCTION ko.change_settings(parcel bigint) RETURNS void LANGUAGE sql
SET search_path = pg_catalog, pg_temp AS $$
    WITH differing AS (
        SELECT l.position, l.id AS key, to_jsonb(s.value) AS old, l.after #>> '{}' AS new
        FROM ko.lines l LEFT JOIN ko.settings s ON s.key = l.id
        WHERE l.number = parcel AND l.kind = 'S' AND s.value IS DISTINCT FROM l.after #>> '{}'
    ), emptied AS (
        DELETE FROM ko.settings s USING differing d WHERE s.key = d.key AND d.new IS NULL
    ), filled AS (
        INSERT INTO ko.settings (key, value) SELECT key, new FROM differing WHERE new IS NOT NULL
        ON CONFLICT (key) DO UPDATE SET value = excluded.value
    )
    UPDATE ko.lines l SET done = true, before = differing.old
    FROM differing WHERE l.number = parcel AND l.position = differing.position;

    WITH differing AS (
        SELECT l.position, s.environments AS old, l.after AS new FROM ko.lines l, ko.site s
        WHERE l.number = parcel AND l.kind = 'E' AND s.environments <> l.after
    ), changed AS (
        UPDATE ko.site SET environments = differing.new FROM differing
    )
    UPDATE ko.lines l SET done = true, before = differing.old
    FROM differing WHERE l.number = parcel AND l.position = differing.position
$$;

-- Does what the parcel's lines say, of each kind that it has.
CREATE FUNCTION ko.apply(parcel bigint) RETURNS void LANGUAGE plpgsql
SET search_path = pg_catalog, pg_temp AS $$
DECLARE
    what text[];
BEGIN
    SELECT array_agg(DISTINCT kind::text || CASE WHEN before IS NULL THEN '+' WHEN after IS NULL THEN '-' ELSE '' END)
    INTO what FROM ko.lines WHERE number = parcel;
    IF 'R-' = ANY (what) THEN PERFORM ko.remove_relations(parcel); END IF;
    IF 'N-' = ANY (what) THEN PERFORM ko.remove_nodes(parcel); END IF;
    IF 'N+' = ANY (what) THEN PERFORM ko.add_nodes(parcel); END IF;
    IF what && '{N,N+}' THEN PERFORM ko.update_nodes(parcel); END IF;
    IF 'R+' = ANY (what) THEN PERFORM ko.add_relations(parcel); END IF;
    IF what && '{S,S+,S-,E}' THEN PERFORM ko.change_settings(parcel); END IF;
END
$$;

-- Takes parcels, in their order, as ko.parcels_after() gives them; a line that was there already is left out. Returns
-- the number of the last parcel of the site.
CREATE FUNCTION ko.submit(parcels jsonb) RETURNS bigint LANGUAGE plpgsql SECURITY DEFINER
SET search_path = pg_catalog, pg_temp AS $$
DECLARE
    parcel jsonb;
    cause jsonb;
    last bigint;
    next bigint;
BEGIN
    -- Others wait here, so numbers become visible in their order.
    SELECT number INTO STRICT last FROM ko.site FOR UPDATE;
    FOR parcel IN SELECT value FROM jsonb_array_elements(parcels) LOOP
        IF (parcel->>'version')::integer IS DISTINCT FROM 1 THEN
            RAISE EXCEPTION 'a parcel of version %', parcel->>'version' USING ERRCODE = 'feature_not_supported';
        END IF;
        cause := parcel->'set';
        IF NOT EXISTS (
            SELECT FROM jsonb_array_elements(parcel->'lines') given WHERE NOT EXISTS (
                SELECT FROM ko.lines l WHERE l.set_id = cause->>'id' AND l.line = (given->>'line')::bigint)) THEN
            CONTINUE;
        END IF;
        next := last + 1;
        INSERT INTO ko.change_sets (id, "user", station, "time", purpose, subject, submitted_by)
        VALUES (cause->>'id', cause->>'user', cause->>'station', (cause->>'time')::bigint, cause->>'purpose',
            cause->>'subject', session_user)
        ON CONFLICT (id) DO NOTHING;
        INSERT INTO ko.parcels (number, set_id) VALUES (next, cause->>'id');
        INSERT INTO ko.lines (number, position, set_id, line, kind, id, before, after)
        SELECT next, place, cause->>'id', (given->>'line')::bigint, (given->>'kind')::"char", given->>'id',
            nullif(given->'before', 'null'), nullif(given->'after', 'null')
        FROM jsonb_array_elements(parcel->'lines') WITH ORDINALITY listed (given, place)
        ON CONFLICT (set_id, line) DO NOTHING;
        UPDATE ko.site SET number = next;
        PERFORM ko.apply(next);
        last := next;
    END LOOP;
    PERFORM pg_notify('ko', last::text);
    RETURN last;
END
$$;

-- The parcels after a number, at most so many, in their order.
CREATE FUNCTION ko.parcels_after(after bigint, most integer) RETURNS TABLE (number bigint, parcel text)
LANGUAGE sql STABLE SECURITY DEFINER SET search_path = pg_catalog, pg_temp AS $$
    SELECT p.number, jsonb_build_object('version', 1, 'number', p.number, 'id', p.id,
        'set', jsonb_build_object('id', s.id, 'user', s."user", 'station', s.station, 'time', s."time",
            'purpose', s.purpose, 'subject', s.subject),
        'lines', (
            SELECT jsonb_agg(jsonb_build_object('line', l.line, 'kind', l.kind, 'id', l.id, 'before', l.before,
                'after', l.after, 'done', l.done) ORDER BY l.position)
            FROM ko.lines l WHERE l.number = p.number))::text
    FROM ko.parcels p JOIN ko.change_sets s ON s.id = p.set_id
    WHERE p.number > after ORDER BY p.number LIMIT most
$$;

-- The newest of these parcels that the site still has; 0 if none.
CREATE FUNCTION ko.agreed(numbers bigint[], ids uuid[]) RETURNS bigint
LANGUAGE sql STABLE SECURITY DEFINER SET search_path = pg_catalog, pg_temp AS $$
    SELECT coalesce(max(p.number), 0)
    FROM unnest(numbers, ids) known (number, id) JOIN ko.parcels p USING (number, id)
$$;

-- What a desk asks first.
CREATE FUNCTION ko.greet(OUT site uuid, OUT version integer, OUT number bigint, OUT may_write boolean)
LANGUAGE sql STABLE SECURITY DEFINER SET search_path = pg_catalog, pg_temp AS $$
    SELECT s.id, s.version, s.number, has_function_privilege(session_user, 'ko.submit(jsonb)', 'EXECUTE')
    FROM ko.site s
$$;

-- What there is, row by row, as desks have it too: at most so many rows after a place.
CREATE FUNCTION ko.nodes_after(after bigint, most integer) RETURNS TABLE (place bigint, item text)
LANGUAGE sql STABLE SECURITY DEFINER SET search_path = pg_catalog, pg_temp AS $$
    SELECT n.place, jsonb_build_array(n.place, n.id, n.type, n.name, coalesce((
        SELECT jsonb_object_agg(p.key, p.value) FROM ko.properties p WHERE p.node = n.place), '{}'))::text
    FROM ko.nodes n WHERE n.place > after ORDER BY n.place LIMIT most
$$;

CREATE FUNCTION ko.relations_after(after bigint, most integer) RETURNS TABLE (place bigint, item text)
LANGUAGE sql STABLE SECURITY DEFINER SET search_path = pg_catalog, pg_temp AS $$
    SELECT r.place, jsonb_build_array(r.place, a.id, b.id, r.type)::text
    FROM ko.relations r JOIN ko.nodes a ON a.place = r.source JOIN ko.nodes b ON b.place = r.destination
    WHERE r.place > after ORDER BY r.place LIMIT most
$$;

-- Settings and environments, as one row.
CREATE FUNCTION ko.rest_after(after bigint, most integer) RETURNS TABLE (place bigint, item text)
LANGUAGE sql STABLE SECURITY DEFINER SET search_path = pg_catalog, pg_temp AS $$
    SELECT 1, jsonb_build_array(coalesce((SELECT jsonb_object_agg(key, value) FROM ko.settings), '{}'),
        s.environments)::text
    FROM ko.site s WHERE after < 1 LIMIT most
$$;

-- Everything that there is, as one text: equal texts, equal states.
CREATE FUNCTION ko.state() RETURNS text
LANGUAGE sql STABLE SECURITY DEFINER SET search_path = pg_catalog, pg_temp AS $$
    SELECT jsonb_build_object(
        'nodes', (SELECT jsonb_agg(jsonb_build_array(n.place, n.id, n.type, n.name, (
                SELECT jsonb_object_agg(p.key, p.value) FROM ko.properties p WHERE p.node = n.place)) ORDER BY n.place)
            FROM ko.nodes n),
        'relations', (SELECT jsonb_agg(jsonb_build_array(r.place, a.id, b.id, r.type) ORDER BY r.place)
            FROM ko.relations r JOIN ko.nodes a ON a.place = r.source JOIN ko.nodes b ON b.place = r.destination),
        'settings', (SELECT jsonb_object_agg(key, value) FROM ko.settings),
        'environments', (SELECT environments FROM ko.site))::text
$$;

-- Roles are those of the whole server: ko_viewer reads, ko_editor also writes, ko_owner also gives these rights.
DO $$
BEGIN
    PERFORM pg_advisory_xact_lock(hashtext('ko roles'));
    IF NOT EXISTS (SELECT FROM pg_roles WHERE rolname = 'ko_viewer') THEN CREATE ROLE ko_viewer NOLOGIN; END IF;
    IF NOT EXISTS (SELECT FROM pg_roles WHERE rolname = 'ko_editor') THEN
        CREATE ROLE ko_editor NOLOGIN IN ROLE ko_viewer;
    END IF;
    IF NOT EXISTS (SELECT FROM pg_roles WHERE rolname = 'ko_owner') THEN
        CREATE ROLE ko_owner NOLOGIN IN ROLE ko_editor;
        GRANT ko_viewer, ko_editor TO ko_owner WITH ADMIN OPTION;
    END IF;
END
$$;
REVOKE EXECUTE ON ALL FUNCTIONS IN SCHEMA ko FROM PUBLIC;
GRANT USAGE ON SCHEMA ko TO ko_viewer;
GRANT EXECUTE ON FUNCTION ko.greet(), ko.agreed(bigint[], uuid[]), ko.parcels_after(bigint, integer),
    ko.nodes_after(bigint, integer), ko.relations_after(bigint, integer), ko.rest_after(bigint, integer), ko.state()
    TO ko_viewer;
GRANT EXECUTE ON FUNCTION ko.submit(jsonb) TO ko_editor;

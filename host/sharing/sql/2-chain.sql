-- The chain over all that was done to the site, version 2. Each link is a hash over the one before and what the parcel
-- says now, so whoever knows a link of long ago sees whether anything before it was altered since.

CREATE TABLE ko.links (
    number bigint PRIMARY KEY REFERENCES ko.parcels,
    link bytea NOT NULL -- SHA-256 over the link before, if any, and the SHA-256 of ko.parcel_text(), in UTF-8
);

-- What desks get and what the chain is over, to the byte.
CREATE FUNCTION ko.parcel_text(parcel bigint) RETURNS text LANGUAGE sql STABLE
SET search_path = pg_catalog, pg_temp AS $$
    SELECT jsonb_build_object('version', 1, 'number', p.number, 'id', p.id,
        'set', jsonb_build_object('id', s.id, 'user', s."user", 'station', s.station, 'time', s."time",
            'purpose', s.purpose, 'subject', s.subject, 'submitted_by', s.submitted_by),
        'lines', (
            SELECT jsonb_agg(jsonb_build_object('line', l.line, 'kind', l.kind, 'id', l.id, 'before', l.before,
                'after', l.after, 'done', l.done) ORDER BY l.position)
            FROM ko.lines l WHERE l.number = p.number))::text
    FROM ko.parcels p JOIN ko.change_sets s ON s.id = p.set_id
    WHERE p.number = parcel
$$;

-- Adds the link of the newest parcel.
CREATE FUNCTION ko.add_link(parcel bigint) RETURNS void LANGUAGE sql
SET search_path = pg_catalog, pg_temp AS $$
    INSERT INTO ko.links (number, link)
    SELECT parcel, sha256(coalesce((SELECT l.link FROM ko.links l WHERE l.number = parcel - 1), '')
        || sha256(convert_to(ko.parcel_text(parcel), 'UTF8')))
$$;

-- As before, and adds the link.
CREATE OR REPLACE FUNCTION ko.submit(parcels jsonb) RETURNS bigint LANGUAGE plpgsql SECURITY DEFINER
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
        PERFORM ko.add_link(next);
        last := next;
    END LOOP;
    PERFORM pg_notify('ko', last::text);
    RETURN last;
END
$$;

-- The parcels after a number, at most so many, in their order, with their links in hexadecimal digits.
DROP FUNCTION ko.parcels_after(bigint, integer);
CREATE FUNCTION ko.parcels_after(after bigint, most integer) RETURNS TABLE (number bigint, parcel text, link text)
LANGUAGE sql STABLE SECURITY DEFINER SET search_path = pg_catalog, pg_temp AS $$
    SELECT k.number, ko.parcel_text(k.number), encode(k.link, 'hex')
    FROM ko.links k WHERE k.number > after ORDER BY k.number LIMIT most
$$;

-- The newest of these parcels that the site still has, with its link; 0 if none.
DROP FUNCTION ko.agreed(bigint[], uuid[]);
CREATE FUNCTION ko.agreed(numbers bigint[], ids uuid[], OUT number bigint, OUT link text)
LANGUAGE sql STABLE SECURITY DEFINER SET search_path = pg_catalog, pg_temp AS $$
    SELECT coalesce(newest.number, 0), coalesce(newest.link, '')
    FROM (SELECT) nothing LEFT JOIN (
        SELECT p.number, encode(k.link, 'hex') AS link
        FROM unnest(numbers, ids) known (number, id) JOIN ko.parcels p USING (number, id)
            LEFT JOIN ko.links k ON k.number = p.number
        ORDER BY p.number DESC LIMIT 1
    ) newest ON true
$$;

-- A site of version 1 gets its chain now.
DO $$
DECLARE
    parcel bigint;
BEGIN
    FOR parcel IN SELECT number FROM ko.parcels ORDER BY number LOOP
        PERFORM ko.add_link(parcel);
    END LOOP;
END
$$;

UPDATE ko.site SET version = 2;
REVOKE EXECUTE ON ALL FUNCTIONS IN SCHEMA ko FROM PUBLIC;
GRANT EXECUTE ON FUNCTION ko.agreed(bigint[], uuid[]), ko.parcels_after(bigint, integer) TO ko_viewer;

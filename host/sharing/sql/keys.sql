-- The keys with which the desks of a site seal its passwords. A site that was made before there were any gets this
-- when it is prepared the next time.
--
-- No key is here that anybody could use: the present one is sealed under what Argon2id makes of a passphrase that
-- never comes here, each former one under the key that came after it.

CREATE TABLE ko.keys (
    generation integer PRIMARY KEY,      -- the highest is the present key
    revision integer NOT NULL,           -- of all that was set here, a change of the passphrase too
    name text NOT NULL UNIQUE CHECK (name ~ '^[0-9a-f]{32}$'), -- tells keys apart, and nothing of them
    salt text, operations bigint, memory bigint,               -- what Argon2id takes, memory in bytes
    sealed text CHECK (sealed LIKE 'sealed1:%'),               -- NULL: a former key
    former text CHECK (former LIKE 'sealed1:%'),               -- the key before, sealed under this; NULL: the first
    set_by text NOT NULL,                -- the role that connected
    set_at timestamptz NOT NULL DEFAULT clock_timestamp(),
    CHECK (sealed IS NULL OR (salt IS NOT NULL AND operations > 0 AND memory > 0))
);

-- What a desk needs to open the keys, and what it may do; generation 0: there is none yet.
CREATE FUNCTION ko.key() RETURNS text
LANGUAGE sql STABLE SECURITY DEFINER SET search_path = pg_catalog, pg_temp AS $$
    SELECT (jsonb_build_object('generation', 0, 'revision', 0,
            'may_make', has_function_privilege(session_user, 'ko.make_key(jsonb)', 'EXECUTE'),
            'may_change', has_function_privilege(session_user, 'ko.change_key(integer, jsonb)', 'EXECUTE'))
        || coalesce((
            SELECT jsonb_build_object('generation', k.generation, 'revision', k.revision, 'name', k.name,
                'salt', k.salt, 'operations', k.operations, 'memory', k.memory, 'sealed', k.sealed,
                'former', (SELECT coalesce(jsonb_agg(f.former ORDER BY f.generation DESC), '[]')
                    FROM ko.keys f WHERE f.former IS NOT NULL))
            FROM ko.keys k ORDER BY k.generation DESC LIMIT 1), '{}'))::text
$$;

-- Takes a key, or the present one under another passphrase, if nothing was set since that revision.
CREATE FUNCTION ko.put_key(since integer, given jsonb) RETURNS boolean LANGUAGE plpgsql
SET search_path = pg_catalog, pg_temp AS $$
DECLARE
    present ko.keys;
    next integer;
BEGIN
    PERFORM FROM ko.site FOR UPDATE;
    SELECT * INTO present FROM ko.keys ORDER BY generation DESC LIMIT 1;
    IF coalesce(present.revision, 0) <> since THEN
        RETURN false;
    END IF;
    next := since + 1;
    IF present.name = given->>'name' THEN
        UPDATE ko.keys SET revision = next, salt = given->>'salt', operations = (given->>'operations')::bigint,
            memory = (given->>'memory')::bigint, sealed = given->>'sealed', set_by = session_user,
            set_at = clock_timestamp()
        WHERE generation = present.generation;
    ELSE
        -- Who knows the passphrase of before gets nothing by it any more.
        UPDATE ko.keys SET salt = NULL, operations = NULL, memory = NULL, sealed = NULL;
        INSERT INTO ko.keys (generation, revision, name, salt, operations, memory, sealed, former, set_by)
        VALUES (coalesce(present.generation, 0) + 1, next, given->>'name', given->>'salt',
            (given->>'operations')::bigint, (given->>'memory')::bigint, given->>'sealed', given->>'former',
            session_user);
    END IF;
    IF given->>'sealed' IS NULL THEN
        RAISE EXCEPTION 'a key that is not sealed' USING ERRCODE = 'invalid_parameter_value';
    END IF;
    PERFORM pg_notify('ko', 'key');
    RETURN true;
END
$$;

-- The first key, which any desk that writes may make.
CREATE FUNCTION ko.make_key(given jsonb) RETURNS boolean LANGUAGE sql SECURITY DEFINER
SET search_path = pg_catalog, pg_temp AS $$
    SELECT ko.put_key(0, given)
$$;

CREATE FUNCTION ko.change_key(since integer, given jsonb) RETURNS boolean LANGUAGE sql SECURITY DEFINER
SET search_path = pg_catalog, pg_temp AS $$
    SELECT ko.put_key(since, given)
$$;

REVOKE EXECUTE ON FUNCTION ko.key(), ko.put_key(integer, jsonb), ko.make_key(jsonb), ko.change_key(integer, jsonb)
    FROM PUBLIC;
GRANT EXECUTE ON FUNCTION ko.key() TO ko_viewer;
GRANT EXECUTE ON FUNCTION ko.make_key(jsonb) TO ko_editor;
GRANT EXECUTE ON FUNCTION ko.change_key(integer, jsonb) TO ko_owner;

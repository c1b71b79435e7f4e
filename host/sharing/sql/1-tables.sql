-- The tables of a site that many desks share, version 1. A step, once released, never changes.
--
-- Nobody but their owner reads or writes them: desks call the functions of 1-functions.sql.

CREATE SCHEMA ko;
REVOKE ALL ON SCHEMA ko FROM PUBLIC;

-- One row. Whoever changes the site locks it first, which gives all changes one order.
CREATE TABLE ko.site (
    one boolean PRIMARY KEY DEFAULT true CHECK (one),
    id uuid NOT NULL DEFAULT gen_random_uuid(), -- tells this site from any other
    version integer NOT NULL,                   -- of these tables
    number bigint NOT NULL DEFAULT 0,           -- of the last parcel
    node_places bigint NOT NULL DEFAULT 0,      -- places given to nodes, none of them twice
    relation_places bigint NOT NULL DEFAULT 0,
    environments jsonb NOT NULL DEFAULT '[]'    -- [[id, name], ...]
);
INSERT INTO ko.site (version) VALUES (1);

-- What was confirmed at once at a desk, and what it said of it.
CREATE TABLE ko.change_sets (
    id text PRIMARY KEY,
    "user" text NOT NULL,
    station text NOT NULL,
    "time" bigint NOT NULL, -- milliseconds since 1970, UTC, by the clock of the desk
    purpose text NOT NULL,
    subject text NOT NULL,
    submitted_by text NOT NULL, -- the role that connected, whatever the desk said
    received timestamptz NOT NULL DEFAULT clock_timestamp()
);

-- A change set arrives in one parcel or, when it is a long import, in several. Their numbers are the order of
-- all that was done to the site.
CREATE TABLE ko.parcels (
    number bigint PRIMARY KEY,
    id uuid NOT NULL DEFAULT gen_random_uuid(), -- a restored backup gives a number again, but not this
    set_id text NOT NULL REFERENCES ko.change_sets
);

-- What a parcel changed. Of a line that was done, before and after are what it changed here; of one that could not
-- be done, or was so already, what the desk wanted.
CREATE TABLE ko.lines (
    number bigint NOT NULL REFERENCES ko.parcels,
    position integer NOT NULL, -- negative: a relation that went because its node did
    set_id text NOT NULL,
    line bigint,               -- of the desk that made it, within the change set; NULL: made here
    kind "char" NOT NULL CHECK (kind IN ('N', 'R', 'S', 'E')), -- node, relation, setting, environments
    id text NOT NULL,          -- of the node, of the relation's source, or the key of the setting
    before jsonb,              -- NULL: it was not there
    after jsonb,               -- NULL: it is there no more
    done boolean NOT NULL DEFAULT false,
    CHECK (before IS NOT NULL OR after IS NOT NULL),
    PRIMARY KEY (number, position),
    UNIQUE (set_id, line)      -- by which nothing is done twice
);
CREATE INDEX lines_removed ON ko.lines (id, number) WHERE done AND after IS NULL;

-- What there is now.
CREATE TABLE ko.nodes (
    place bigint PRIMARY KEY, -- in the order of age
    id text NOT NULL UNIQUE,
    type integer NOT NULL,
    name text NOT NULL
);
CREATE TABLE ko.properties (
    node bigint NOT NULL, -- its place
    key text NOT NULL,
    value jsonb NOT NULL, -- [type, value]: 0 text, 1 bool, 2 integer, 3 float, 4 set; passwords are sealed
    PRIMARY KEY (node, key)
);
CREATE TABLE ko.relations (
    place bigint PRIMARY KEY,
    source bigint NOT NULL,
    destination bigint NOT NULL,
    type integer NOT NULL,
    UNIQUE (source, destination, type)
);
CREATE INDEX relations_destination ON ko.relations (destination);
CREATE TABLE ko.settings (
    key text PRIMARY KEY,
    value text NOT NULL
);

-- The permanent tables of the project database.
--
-- They are STRICT, so that a word never lands in a number field. No code is a key: a code may be left out or
-- stand twice, and rows are found in the order in which they were stored. Any number may be left out.

BEGIN;

-- The size of the study area; one record.
CREATE TABLE zones (
  numzones  INTEGER,
  numdstrct INTEGER
) STRICT;

-- The industries of the last choice: a row for each that can be chosen, its code and name only if it was.
CREATE TABLE Industries (
  "index"         INTEGER,
  industry_number INTEGER,
  description     TEXT
) STRICT;

-- The occupations of the last choice, in the same way.
CREATE TABLE Occupations (
  "index"           INTEGER,
  Occupation_Number INTEGER,
  description       TEXT
) STRICT;

-- The files of an analysis; one record of paths.
CREATE TABLE Anfiles (
  -- trips by industry
  Agfile  TEXT,
  Minfile TEXT,
  Manfile TEXT,
  Serfile TEXT,
  foutfile  TEXT, -- the commercial run's results
  Distrfile TEXT, -- the district of each zone
  relFile   TEXT, -- speeds and highway shares
  TonsFile  TEXT, -- annual tons by commodity, to be made trucks of
  -- residents and workers by occupation, in the order of the rows of commuter
  Prodfile        TEXT,
  Tranfile        TEXT,
  Execfile        TEXT,
  Techfile        TEXT,
  Machfile        TEXT,
  Protectfile     TEXT,
  Laborerfile     TEXT,
  Salesfiles      TEXT,
  Professfiles    TEXT,
  Adminfiles      TEXT,
  Housekeepfiles  TEXT,
  Occservicefiles TEXT,
  OccOutfile TEXT -- the commuter run's results
) STRICT;

-- The files of distances and times between zones; one record of paths.
CREATE TABLE timdist (
  distance         TEXT, -- miles
  base_time        TEXT, -- minutes, as things are
  improvement_time TEXT  -- minutes, with the improvement
) STRICT;

-- What the commuter model takes for each occupation; twelve rows, addressed by their place and by index.
CREATE TABLE commuter (
  "index" INTEGER, -- 0 to 11
  sigma   REAL,    -- elasticity of substitution
  wage    REAL     -- dollars a day
) STRICT;

-- How commuters travel, and what it costs them; one record, addressed by the places of its fields.
CREATE TABLE Commute_Param (
  ModeShare1     REAL,
  ModeShare2     REAL,
  ModeShare3     REAL,
  ModeShare4     REAL,
  CostParameterA REAL,
  CostParameterB REAL
) STRICT;

-- Speeds and shares of travel on highways for a reliability analysis; one record, addressed by the places of
-- its fields.
CREATE TABLE var_input (
  BaseSpeed               REAL, -- miles an hour
  BaseHighwayShare        REAL, -- 0 to 1
  ImprovementSpeed        REAL,
  ImprovementHighwayShare REAL
) STRICT;

-- What the commercial model takes for each industry; four rows, addressed by their place and by code.
CREATE TABLE Commercial (
  industry_number    INTEGER, -- 1 agriculture, 2 mining, 4 manufacturing, 9 service
  sigma              REAL,    -- elasticity of substitution
  "Value"            REAL,    -- worth of a load
  "Unit Cost"        REAL,
  "Reliability Cost" REAL,
  "JIT Factor"       REAL,    -- how much of it is needed just in time
  "Load Factor"      REAL
) STRICT;

-- How tons become truck trips: a row for each class of commodities. All columns go to the conversion as they
-- stand here.
CREATE TABLE tontotruck (
  Commodity    INTEGER, -- the class
  TonsPerTruck REAL,    -- mean load
  TruckShare   REAL,    -- share of the tons that goes by truck, 0 to 1
  DaysPerYear  REAL     -- days on which trucks run
) STRICT;

-- Fields of single precision, which no column type tells.
CREATE TABLE field_types (
  table_name TEXT,
  field_name TEXT,
  type       TEXT
) STRICT;

INSERT INTO field_types VALUES
  ('Commercial', 'sigma',            'single'),
  ('Commercial', 'Value',            'single'),
  ('Commercial', 'Unit Cost',        'single'),
  ('Commercial', 'Reliability Cost', 'single'),
  ('Commercial', 'JIT Factor',       'single'),
  ('Commercial', 'Load Factor',      'single');

COMMIT;

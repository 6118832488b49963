-- The project template: every new project is a copy of the file that this makes.
--
--   rm -f GullymarkAL10.rdb && sqlite3 -bail GullymarkAL10.rdb < GullymarkAL10.sql
--
-- All values are texts, numbers too, in the form in which the screen shows them; only TEXT columns keep "10" the text
-- that it is. The engine enforces no width: a width in brackets is the most that a field lets a user type, or what the
-- longest entry of its list needs.

PRAGMA application_id = 1196247857;  -- "GMK1": a project file of this product
PRAGMA encoding = 'UTF-8';

-- The one row of project details. The template holds none: a new project gets its row when its details are saved.
CREATE TABLE PROJECT (
    PROJECT_ID    TEXT(20),
    PROJECT_NAME  TEXT(50),
    DESCRIPTION   TEXT(200),
    LOCATION      TEXT(50),
    COUNTY        TEXT(50),
    STATE         TEXT(50),
    DESIGNER      TEXT(25),
    UNITS         TEXT(10),   -- "ENGLISH", or any other text for metric: the units of every value of the file

    -- Written by nobody: a new row takes them from here. PRODUCT_NAME marks a file of this product.
    PRODUCT_NAME  TEXT(20)  DEFAULT 'GULLYMARKAL',
    MAJOR_RELEASE TEXT(10)  DEFAULT '1',
    MINOR_RELEASE TEXT(10)  DEFAULT '00',
    RELEASE_DATE  TEXT(20)  DEFAULT 'MAY 2010',

    -- For the user department's own use; the program neither reads nor writes them.
    UDEF1         TEXT(50),
    UDEF2         TEXT(50),
    UDEF3         TEXT(50),
    UDEF4         TEXT(50),
    UDEF5         TEXT(50)
);

-- One row for each inlet. INLET_NUMBER is its key by convention: the editor sees to it that a number stands once.
CREATE TABLE INLET (
    -- Identity and layout
    INLET_NUMBER        TEXT(20),
    PROJECT_ID          TEXT(20),
    ROADWAY             TEXT(50),
    STATION             TEXT(20),
    OFFSET              TEXT(10),
    OFFSET_LOCATION     TEXT(10),
    INLET_TYPE          TEXT(50),
    INLET_LOCATION      TEXT(20),
    INLET_SUBTYPE       TEXT(25),
    FLOW_DIRECTION      TEXT(20),
    CURB_HEIGHT         TEXT(10),
    ALLOWABLE_SPREAD    TEXT(6),
    TOP_ELEVATION       TEXT(10),

    -- Flow data: 1 or no suffix is the left side, 2 the right side, which counts in a sump
    STORM_FREQUENCY     TEXT(10),
    LDISCHARGE_OVERRIDE TEXT(3),    -- "YES": typed by hand
    RDISCHARGE_OVERRIDE TEXT(3),
    RUNOFF_AREA         TEXT(10),
    RUNOFF_COEFF        TEXT(10),
    INTENSITY           TEXT(10),
    RUNOFF_AREA2        TEXT(10),
    RUNOFF_COEFF2       TEXT(10),
    INTENSITY2          TEXT(10),
    DISCHARGE1          TEXT(10),
    DISCHARGE2          TEXT(10),
    CARRYOVER1          TEXT(10),   -- the QCARRY that the previous inlet had when it was entered
    CARRYOVER2          TEXT(10),
    PREINLET1           TEXT(20),   -- INLET_NUMBER of the previous inlet on that side
    PREINLET2           TEXT(20),
    OVERLAND_FLOW       TEXT(10),
    TOTAL_DISCHARGE     TEXT(10),

    -- Inlet data
    LONGSLOPE           TEXT(10),
    PAVXSLOPE           TEXT(10),
    INLETXSLOPE         TEXT(10),
    INLETLENGTH         TEXT(10),
    OPENLEN_GRATE       TEXT(10),
    GRATETYPE           TEXT(50),
    CURBOPTION          TEXT(20),
    THROATYPE           TEXT(20),
    GRATEPERCLOG        TEXT(10),
    SLOTWIDTH           TEXT(10),
    GRATEAREA           TEXT(10),
    GRATEPERI           TEXT(10),
    GRATEWIDTH          TEXT(10),
    THROATANGLE         TEXT(10),
    HEIGHTOFCURB        TEXT(10),
    RSCOPERATIO         TEXT(10),
    LSCOPERATIO         TEXT(10),
    MANNINGS            TEXT(10),
    GUTWIDTH            TEXT(10),
    GUTXSLOPE           TEXT(10),
    LOCDEPWIDTH         TEXT(10),
    LOCALDEP            TEXT(10),

    -- Results, written by a solve
    OPENSPREAD          TEXT(20),
    GUTTERSPREAD        TEXT(20),
    WT                  TEXT(20),
    FLOWRATIO           TEXT(20),
    DEPXSLOPE           TEXT(20),
    COMPXSLOPE          TEXT(20),
    INTLEN              TEXT(20),
    EFFICIENCY          TEXT(20),
    FLOWVEL             TEXT(20),
    CURBDEPTH           TEXT(20),
    QINT                TEXT(20),
    QCARRY              TEXT(20),
    QINTCURB            TEXT(20),
    QINTGRATE           TEXT(20),
    FLOWAREA            TEXT(20),
    WETPERI             TEXT(20),
    HYDRAD              TEXT(20),
    FFLOWEFF            TEXT(20),
    SFLOWEFF            TEXT(20),
    DSBH                TEXT(20),
    EFFPERI             TEXT(20),
    DEPTHATINLET        TEXT(20),
    RAREA               TEXT(20),
    RPERI               TEXT(20),
    EFFLEN              TEXT(20),
    INLETPERF           TEXT(50)
);

-- The lists are in the order of the numbers; the others serve the search for the inlets that name one as their previous.
CREATE INDEX INLET_BY_NUMBER ON INLET (INLET_NUMBER);
CREATE INDEX INLET_BY_PREINLET1 ON INLET (PREINLET1);
CREATE INDEX INLET_BY_PREINLET2 ON INLET (PREINLET2);

-- The sample study: a town of 24 zones that is ready to run. Paths are relative to the application directory.

BEGIN;

INSERT INTO zones VALUES (24, 4);

INSERT INTO Industries VALUES
  (1, 4, 'Manufacturing'),
  (2, 2, 'Mining'),
  (3, 1, 'Agriculture'),
  (4, 9, 'Service');

INSERT INTO Occupations VALUES
  (1,  1,    'Executive_Adminstrative_Managerial'),
  (2,  2,    'Professional_Specialty'),
  (3,  3,    'Technicians_and_Related_Support'),
  (4,  4,    'Sales'),
  (5,  5,    'Administrative_Support'),
  (6,  6,    'Private_Household'),
  (7,  7,    'Protective_Service'),
  (8,  8,    'Service'),
  (9,  9,    'Precision_production_craft_and_repair'),
  (10, 10,   'Machine_operators_assemblers_inspectors'),
  (11, 11,   'Transportation_and_material_moving'),
  (12, 12,   'Handlers_equipment_cleaners_helpers'),
  (13, NULL, NULL);

INSERT INTO timdist VALUES ('sample/distance.txt', 'sample/base_time.txt', 'sample/imp_time.txt');

INSERT INTO Anfiles (
  Agfile, Minfile, Manfile, Serfile,
  foutfile, Distrfile, relFile, TonsFile,
  Prodfile, Tranfile, Execfile,
  Techfile, Machfile, Protectfile,
  Laborerfile, Salesfiles, Professfiles,
  Adminfiles, Housekeepfiles, Occservicefiles,
  OccOutfile
) VALUES (
  'sample/trips_Agriculture.txt', 'sample/trips_Mining.txt',
  'sample/trips_Manufacturing.txt', 'sample/trips_Service.txt',
  'results/commercial.txt', 'sample/districts.txt', 'sample/reliability.txt', 'sample/commodity.txt',
  'sample/commute_Precision_production_craft_and_repair.txt',
  'sample/commute_Transportation_and_material_moving.txt',
  'sample/commute_Executive_Adminstrative_Managerial.txt',
  'sample/commute_Technicians_and_Related_Support.txt',
  'sample/commute_Machine_operators_assemblers_inspectors.txt',
  'sample/commute_Protective_Service.txt',
  'sample/commute_Handlers_equipment_cleaners_helpers.txt',
  'sample/commute_Sales.txt',
  'sample/commute_Professional_Specialty.txt',
  'sample/commute_Administrative_Support.txt',
  'sample/commute_Private_Household.txt',
  'sample/commute_Service.txt',
  'results/commuter.txt'
);

-- The parameters as "Restore Defaults" writes them.
INSERT INTO commuter VALUES
  (0,  11.27, 129.6),
  (1,  11.35, 120.64),
  (2,  12.25, 175.2),
  (3,  12.83, 139.2),
  (4,  13.04, 98),
  (5,  13.21, 78.32),
  (6,  13.75, 88.24),
  (7,  13.05, 125.2),
  (8,  14.57, 179.12),
  (9,  14.66, 101.12),
  (10, 16.02, 116.56),
  (11, 16.49, 88.2);

INSERT INTO Commercial VALUES
  (1, 14.51, 16765, 25.07, 430, 1, 90),
  (2, 4.62,  5469,  25.04, 50,  1, 95),
  (4, 7.44,  34682, 25.66, 50,  1, 95),
  (9, 10.61, 135,   0,     50,  1, 95);

INSERT INTO Commute_Param VALUES (0.7629, 0.0929, 0.1394, 0.0048, 0.25, 2.38);

-- The improvement makes the highway faster and draws traffic to it.
INSERT INTO var_input VALUES (38, 0.42, 47, 0.48);

INSERT INTO tontotruck VALUES
  (1, 16.5, 0.88, 300), -- farm products
  (2, 21,   0.62, 280), -- ores, coal and stone
  (3, 14.2, 0.91, 300), -- food
  (4, 18.4, 0.79, 280), -- wood and paper
  (5, 20.1, 0.54, 310), -- petroleum and chemicals
  (6, 17.3, 0.7,  290), -- metals
  (7, 8.6,  0.95, 300), -- machinery and vehicles
  (8, 5.4,  0.97, 310); -- parcels and mixed goods

COMMIT;

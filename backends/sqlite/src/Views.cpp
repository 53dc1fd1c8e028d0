#include "Views.h"

namespace SqliteBackend {

const char* const views = R"(
CREATE VIEW trouble_codes AS
SELECT c.source_name AS source,
       printf('0x%06X', t.code) AS code,
       t.error_text,
       (SELECT group_concat(coalesce(i.content || '=', '') || r.text, '; ')
          FROM (SELECT * FROM record_item WHERE trouble_code_id = t.id ORDER BY position) AS r
          LEFT JOIN record_template_item AS i
            ON i.trouble_code_collection_id = t.trouble_code_collection_id AND i.position = r.position) AS record,
       t.is_imported,
       t.id AS trouble_code_id
  FROM trouble_code AS t JOIN trouble_code_collection AS c ON c.id = t.trouble_code_collection_id
 ORDER BY t.id;

CREATE VIEW trouble_code_records AS
SELECT c.source_name AS source,
       printf('0x%06X', t.code) AS code,
       r.position,
       i.content AS item,
       r.text,
       r.enum_index,
       r.text_text_id AS text_id,
       t.id AS trouble_code_id
  FROM trouble_code AS t
  JOIN trouble_code_collection AS c ON c.id = t.trouble_code_collection_id
  JOIN record_item AS r ON r.trouble_code_id = t.id
  LEFT JOIN record_template_item AS i ON i.trouble_code_collection_id = c.id AND i.position = r.position
 ORDER BY t.id, r.position;

CREATE VIEW services AS
SELECT v.kind AS variant_kind,
       v.qualifier AS variant,
       d.kind,
       d.qualifier,
       d.name,
       CASE WHEN d.service_id IS NOT NULL THEN printf('0x%02X', d.service_id) END AS service_id,
       d.semantic,
       d.functional_class,
       s.qualifier AS shape,
       CASE WHEN s.sub_value IS NOT NULL THEN printf('0x%02X', s.sub_value) END AS sub_value,
       d.is_imported,
       d.id AS diag_comm_id
  FROM variant AS v
  JOIN diag_comm AS d ON d.variant_id = v.id
  LEFT JOIN service_shape AS s ON s.diag_comm_id = d.id
 ORDER BY v.id, d.position, s.position;

CREATE VIEW data_types AS
SELECT t.id AS data_type_id,
       t.qualifier,
       t.name,
       t.kind,
       coalesce(e.name, c.encoding) AS coded_as,
       c.bit_length,
       coalesce(b.name, c.byte_order) AS byte_order,
       CASE WHEN c.bit_mask <> 4294967295 THEN printf('0x%X', c.bit_mask) END AS bit_mask,
       CASE c.quantity WHEN 1 THEN c.min_length || ' to ' || c.max_length || ' elements' END AS field_length,
       coalesce(pe.name, p.encoding) AS physical_as,
       coalesce(nullif(d.unit, ''), p.unit) AS unit,
       coalesce(l.name, t.source_layer) AS source_layer,
       t.source_info
  FROM data_type AS t
  LEFT JOIN coded_properties AS c ON c.data_type_id = t.id
  LEFT JOIN physical_properties AS p ON p.data_type_id = t.id
  LEFT JOIN display_properties AS d ON d.data_type_id = t.id
  LEFT JOIN enumeration AS e ON e.enumeration = 'encoding' AND e.number = c.encoding
  LEFT JOIN enumeration AS b ON b.enumeration = 'byte order' AND b.number = c.byte_order
  LEFT JOIN enumeration AS pe ON pe.enumeration = 'encoding' AND pe.number = p.encoding
  LEFT JOIN enumeration AS l ON l.enumeration = 'source layer' AND l.number = t.source_layer
 ORDER BY t.id;

CREATE VIEW data_type_conversions AS
SELECT t.id AS data_type_id, t.qualifier, t.kind, x.position, x.from_value, x.to_value, x.conversion, x.inverse_value
  FROM data_type AS t
  JOIN (SELECT l.data_type_id, l.position, s.text AS from_value, e.text AS to_value,
               CASE WHEN l.factor_numerator IS NOT NULL AND l."offset" IS NOT NULL
                    THEN printf('coded * %.15g / %d %s %.15g', l.factor_numerator, l.factor_denominator,
                                iif(l."offset" < 0, '-', '+'), abs(l."offset")) END AS conversion,
               i.text AS inverse_value
          FROM linear_conversion AS l
          LEFT JOIN value AS s ON s.id = l.start_value_id
          LEFT JOIN value AS e ON e.id = l.end_value_id
          LEFT JOIN value AS i ON i.id = l.inverse_value_id
        UNION ALL
        SELECT r.data_type_id, r.position, s.text, e.text, r.mapped_text, i.text
          FROM text_table_row AS r
          LEFT JOIN value AS s ON s.id = r.start_value_id
          LEFT JOIN value AS e ON e.id = r.end_value_id
          LEFT JOIN value AS i ON i.id = r.inverse_value_id
        UNION ALL
        SELECT data_type_id, NULL, NULL, NULL, default_text, NULL FROM text_table WHERE default_text <> ''
        UNION ALL
        SELECT data_type_id, position, CAST(coded_value AS TEXT), CAST(coded_value AS TEXT),
               CAST(mapped_value AS TEXT), NULL
          FROM value_table_row
        UNION ALL
        SELECT data_type_id, 0, NULL, NULL, coded_to_physical, physical_to_coded FROM formula
        UNION ALL
        SELECT data_type_id, position, NULL, NULL, direction || ': ' || entry_point || ' in ' || source_file, NULL
          FROM conversion_function) AS x ON x.data_type_id = t.id
 ORDER BY t.id, x.position IS NULL, x.position;

CREATE VIEW invalid_ranges AS
SELECT t.id AS data_type_id, t.qualifier, s.text AS from_value, e.text AS to_value,
       coalesce(s.is_physical, e.is_physical) AS is_physical, coalesce(n.name, r.invalidity) AS invalidity,
       r.assigned_text
  FROM invalid_range AS r
  JOIN data_type AS t ON t.id = r.data_type_id
  LEFT JOIN value AS s ON s.id = r.start_value_id
  LEFT JOIN value AS e ON e.id = r.end_value_id
  LEFT JOIN enumeration AS n ON n.enumeration = 'invalidity' AND n.number = r.invalidity
 ORDER BY r.data_type_id, r.position;

CREATE VIEW packet_content AS
SELECT p.id AS packet_id,
       p.qualifier AS packet,
       p.kind AS packet_kind,
       CASE WHEN i.in_mux_case_id IS NOT NULL THEN 'case ' || m.qualifier
            WHEN i.in_default_case_of_id IS NOT NULL THEN 'default case'
            WHEN p.id IS NULL THEN 'document'
            ELSE 'content' END AS part,
       i.depth,
       i.position,
       i.kind,
       i.qualifier,
       i.name,
       coalesce(s.name, i.semantics) AS semantics,
       t.qualifier AS data_type,
       c.text AS const_value,
       c.is_physical AS const_is_physical,
       d.text AS default_value,
       d.is_physical AS default_is_physical,
       i.bit_length,
       i.id AS interchangeable_id
  FROM interchangeable AS i
  LEFT JOIN mux_case AS m ON m.id = i.in_mux_case_id
  LEFT JOIN data_type AS p ON p.id = coalesce(i.in_packet_id, i.in_default_case_of_id, m.mux_id)
  LEFT JOIN data_type AS t ON t.id = i.data_type_id
  LEFT JOIN value AS c ON c.id = i.const_value_id
  LEFT JOIN value AS d ON d.id = i.default_value_id
  LEFT JOIN enumeration AS s ON s.enumeration = 'semantics' AND s.number = i.semantics
 ORDER BY i.id;

CREATE VIEW mux_cases AS
SELECT t.id AS mux_id, t.qualifier AS mux, x.qualifier AS selector, c.position, c.qualifier AS mux_case,
       s.text AS from_value, e.text AS to_value, coalesce(s.is_physical, e.is_physical) AS is_physical,
       (SELECT count(*) FROM interchangeable AS i WHERE i.in_mux_case_id = c.id) AS members
  FROM mux_case AS c
  JOIN mux AS m ON m.data_type_id = c.mux_id
  JOIN data_type AS t ON t.id = m.data_type_id
  LEFT JOIN data_type AS x ON x.id = m.selector_data_type_id
  LEFT JOIN value AS s ON s.id = c.start_value_id
  LEFT JOIN value AS e ON e.id = c.end_value_id
 ORDER BY c.mux_id, c.position;

CREATE VIEW import_losses AS
SELECT kind, fate, reason, count FROM ledger_reason ORDER BY fate, kind, reason;
)";

} // namespace SqliteBackend

#include "reference/tables.h"

namespace reference {

// A record line has the name, the luid, and the sizes: used, rounded, slop, base, state, tracked. Its members follow in
// order, each with its class and type; a string and an array name the member that counts them, and an array names the
// method that computes its length.
//
// The sizes are in bytes, with offsets from the start of the instance or of its state area:
//   used     11 for the header, then the members: integers, counts and lengths at multiples of their size; at multiples
//            of 8, booleans and enumerations of 16, addresses of 40, strings and arrays of 8, and nested records of
//            their base
//   rounded  used, rounded up to a multiple of 8
//   base     rounded + 8, or + 16 if rounded is 64 or more
//   slop     base - used
//   state    1 for each member but counts and lengths; after it 7 for an address; 8 for an array, at a multiple of 8;
//            for a nested record its state, at a multiple of 8 if it has an array at any depth. With an array at any
//            depth, the sum is rounded up to a multiple of 8
//   tracked  base + state
const char *const record_tables = R"tables(
record lumo_tarn_exmem_info 60d55c75e70c45de4e19a835975182eb 44 48 12 56 4 60
  cl_addr integer u_int64
  exmem_addr integer u_int64
  ppe_addr integer u_int64
  size integer u_int32
record lumo_tarn_fdb_base 6a69888fdf996d4535521688d91ce774 20 24 12 32 5 37
  hdr_ver integer u_int8
  hdr_len integer u_int8
  hdr_flags integer u_int16
  ftr_ver integer u_int16
  ftr_len integer u_int16
record lumo_tarn_fdb_mem_info 5ea662ce18406a57e8d97350d5779fbc 32 32 8 40 3 43
  type integer u_int32
  size integer u_int32
  mem_addr integer u_int64
record lumo_tarn_exmem_info_wrapper 1ac4a09d31cce88dcc15cc105062ccf8 72 72 16 88 5 93
  exmem nested lumo_tarn_exmem_info
record lumo_tarn_dp_appl 79672243f138925a1adfdb7e012965bd 88 88 16 104 9 113
  exmem_info nested lumo_tarn_exmem_info
  type integer u_int8
  id integer u_int16
  tarn_kesh_id integer u_int16
  next_ptr integer u_int64
record lumo_tarn_dp_tc ed7168bceeaa74618db6b05286fecacb 300 304 20 320 44 364
  exmem_info nested lumo_tarn_exmem_info
  src_prefix address ip_address
  dst_prefix address ip_address
  proto integer u_int8
  tos integer u_int8
  flags integer u_int16
  bit_flags integer u_int8
  src_port_min integer u_int16
  src_port_max integer u_int16
  dst_port_min integer u_int16
  dst_port_max integer u_int16
  src_port_opr integer u_int16
  dst_port_opr integer u_int16
  next_ptr integer u_int64
  appl_data_ptr integer u_int64
  appl nested lumo_tarn_dp_appl
  id integer u_int32
record lumo_tarn_dp_tc_list e418727cd10ea7443c8bbbe9816b285b 24 24 8 32 16 48
  num_tcs count u_int32
  tc_list array lumo_tarn_dp_tc num_tcs sum
record lumo_tarn_dp_appl_list 552017bbbbd8bdc890695d1686395706 24 24 8 32 16 48
  num_appls count u_int32
  appl_list array lumo_tarn_dp_appl num_appls product
record lumo_tarn_dp_ll_spec 1a46d1ad245ecd8ddb03940c9e78474e 320 320 16 336 88 424
  display_all boolean mirk_boolean
  display_tc boolean mirk_boolean
  display_appl boolean mirk_boolean
  exmem_info nested lumo_tarn_exmem_info
  id integer u_int32
  min_mask integer u_int8
  agg_type integer u_int8
  learn_type integer u_int8
  ll_type integer u_int8
  num_prefixes integer u_int32
  filter_tc_list_ptr integer u_int64
  filter_tc_list nested lumo_tarn_dp_tc_list
  acl_tc_list_ptr integer u_int64
  acl_tc_list nested lumo_tarn_dp_tc_list
  appl_list_ptr integer u_int64
  appl_list nested lumo_tarn_dp_appl_list
  next_ptr integer u_int64
  head_ptr integer u_int64
  num_entries integer u_int32
  heap_max_elements integer u_int32
  heap_size integer u_int32
  heap_compare_func integer u_int64
  heap_elements_ptr integer u_int64
  show_ll_comm boolean mirk_boolean
record lumo_tarn_dp_learn_list 42d51729efe0ba6f65a2b03426858912 24 24 8 32 16 48
  num_ll_specs count u_int32
  ll_spec_list array lumo_tarn_dp_ll_spec num_ll_specs sum
record lumo_tarn_dp_debug_setting ad41ed1f43f7eb0ede202ce5d6780f0a 44 48 12 56 9 65
  lumo_num integer u_int8
  mp_cache_enabled integer u_int32
  tt_cache_enabled integer u_int32
  flow_cache_enabled integer u_int32
  ager_enabled integer u_int32
  exporter_enabled integer u_int32
  proxy_enabled integer u_int32
  exporter_tt_enabled integer u_int32
  exporter_mp_enabled integer u_int32
record lumo_tarn_debug_setting c5b10f0f65bc6c4b33577adf0ed8d6b3 28 32 12 40 4 44
  info_enabled integer u_int32
  trace_enabled integer u_int32
  warn_enabled integer u_int32
  error_enabled integer u_int32
record lumo_tarn_dp_debug_setting_data 7d38b0fd6ac289bba5994bd78204d896 24 24 8 32 16 48
  num_lumos count u_int8
  lumo_data array lumo_tarn_dp_debug_setting num_lumos product
record lumo_tarn_cl_kesh_appl 6be60647e80e57000b6b6f8f2d9a6e0f 44 48 12 56 4 60
  proto_name_len length u_int16
  proto_name string var_string proto_name_len
  sub_proto_name_len length u_int16
  sub_proto_name string var_string sub_proto_name_len
  protocol_id integer u_int16
  tarn_id integer u_int16
record lumo_tarn_cl_appl_data 31558f3e5ec0670c57987d4b5f175613 48 48 8 56 16 72
  show_header boolean mirk_boolean
  num_kesh_appls count u_int32
  kesh_appl array lumo_tarn_cl_kesh_appl num_kesh_appls sum
record lumo_tarn_static_exmem_info 2557d9fc36ed08f926459963e2b84549 96 96 16 112 7 119
  mem_type enumeration lumo_tarn_mem_desc_e
  num_hash_elements integer u_int32
  exmem nested lumo_tarn_exmem_info
record lumo_tarn_dyn_exmem_info 21946a632bd59ef767c684b5ebddc290 56 56 8 64 16 80
  mem_type enumeration lumo_tarn_mem_desc_e
  list_header_ptr integer u_int64
  num_exmems count u_int32
  exmem array lumo_tarn_exmem_info_wrapper num_exmems product
record lumo_tarn_lumo_info 96db130edec7ebbd06d4f894d4fe5c5c 680 680 16 696 104 800
  display_all boolean mirk_boolean
  display_fdb boolean mirk_boolean
  display_ha boolean mirk_boolean
  display_wexa boolean mirk_boolean
  display_handles boolean mirk_boolean
  display_exmem boolean mirk_boolean
  display_init boolean mirk_boolean
  lumo_num integer u_int8
  complex_num integer u_int8
  direction enumeration lumo_tarn_lumo_direction_e
  epoch integer u_int32
  fdb_initialized integer u_int32
  fdb_base nested lumo_tarn_fdb_base
  chunk_overhead integer u_int16
  flow_info_mem_size integer u_int16
  mp_cache_entry_size integer u_int16
  tt_cache_entry_size integer u_int16
  tarn_tt_tbl nested lumo_tarn_fdb_mem_info
  tarn_debug_flags nested lumo_tarn_fdb_mem_info
  ha_state enumeration lumo_tarn_ha_state_e
  ha_running integer u_int32
  ha_enabled integer u_int32
  drv_conn_h integer u_int64
  exmem_h integer u_int64
  wexa_num_feat integer u_int16
  wexa_feat_size integer u_int16
  in_wexa_h integer u_int64
  in_wexa_feat_h integer u_int64
  out_wexa_h integer u_int64
  out_wexa_feat_h integer u_int64
  dp_hash_salt integer u_int32
  flow_info_initialized integer u_int32
  dp_flow_info_initialized integer u_int32
  mp_initialized integer u_int32
  dp_mp_initialized integer u_int32
  tt_initialized integer u_int32
  dp_tt_initialized integer u_int32
  appl_sig_initialized integer u_int32
  dp_appl_sig_initialized integer u_int32
  tt_tc_filter_list_exmem_ptr integer u_int64
  tt_tc_agg_list_exmem_ptr integer u_int64
  tt_tc_learn_list_exmem_ptr integer u_int64
  tc_list_head_chunk_h integer u_int64
  tc_chunk_h integer u_int64
  ll_chunk_h integer u_int64
  appl_chunk_h integer u_int64
  cl_appl_sig_hash_ptr integer u_int64
  dp_appl_sig_hash_h integer u_int64
  appl_sig_chunk_h integer u_int64
  appl_sig_hash_exmem nested lumo_tarn_exmem_info
  mp_export_exmem nested lumo_tarn_exmem_info
  tt_export_exmem nested lumo_tarn_exmem_info
  num_static_exmems count u_int8
  static_exmem array lumo_tarn_static_exmem_info num_static_exmems sum
  num_dyn_exmems count u_int8
  dyn_exmem array lumo_tarn_dyn_exmem_info num_dyn_exmems sum
record lumo_tarn_lumo_info_list feae474225863ddfc8b3a23c79e311d4 24 24 8 32 16 48
  num_lumos count u_int32
  lumo_info array lumo_tarn_lumo_info num_lumos sum
record lumo_tarn_global_info f6cafb21d420353f770a3e4d6248dfc5 152 152 16 168 32 200
  display_all boolean mirk_boolean
  display_plat_cfg boolean mirk_boolean
  display_proc_ctx boolean mirk_boolean
  platform_cfg_set integer u_int32
  max_tt_cache_entries integer u_int32
  max_mp_cache_entries integer u_int32
  lumo_evctx_p integer u_int64
  smc_evctx_p integer u_int64
  listen_chan integer u_int64
  ha_init integer u_int32
  mdr integer u_int32
  num_lumos integer u_int8
  num_complexes integer u_int8
  lumo_info_list nested lumo_tarn_lumo_info_list
record lumo_tarn_cl_cfg_data d00c3d42455dc1989145fd9dcb356014 248 248 16 264 48 312
  display_all boolean mirk_boolean
  display_smc boolean mirk_boolean
  global_info nested lumo_tarn_global_info
  tarn_smc_queue_initialized integer u_int32
  tarn_smc_queue_size integer u_int64
  tarn_smc_blocked_flags integer u_int32
  tarn_smc_queue_size_warn_count integer u_int64
record lumo_tarn_dp_wexa_info f787e24cabb6e71d7c7a1a55adc9c035 16 16 8 24 1 25
  flags integer u_int32
record lumo_tarn_dp_lumo_wexa_info c849e2fb6aba5a95d1c584169eb76386 96 96 16 112 7 119
  lumo_num integer u_int8
  in_wexa_is_valid boolean mirk_boolean
  in_wexa nested lumo_tarn_dp_wexa_info
  out_wexa_is_valid boolean mirk_boolean
  out_wexa nested lumo_tarn_dp_wexa_info
record lumo_tarn_dp_intf_data 49fdfe5214d816701b9520f8fc870db7 304 304 16 320 20 340
  intf_name_is_valid boolean mirk_boolean
  intf_name_len length u_int16
  intf_name string var_string intf_name_len
  in_lumo_wexa_is_valid boolean mirk_boolean
  in_lumo_wexa nested lumo_tarn_dp_lumo_wexa_info
  out_lumo_wexa_is_valid boolean mirk_boolean
  out_lumo_wexa nested lumo_tarn_dp_lumo_wexa_info
record lumo_tarn_dp_appl_sig aaa0672e95bcc307d1218218a1706891 120 120 16 136 17 153
  exmem_info nested lumo_tarn_exmem_info
  dp_hash_bucket integer u_int32
  pal_id integer u_int32
  appl_name_len length u_int16
  appl_name string var_string appl_name_len
  appl_id integer u_int16
  protocol integer u_int8
  tos integer u_int8
  flags integer u_int32
  dport_min integer u_int16
  dport_max integer u_int16
  sport_min integer u_int16
  sport_max integer u_int16
  next_ptr integer u_int64
record lumo_tarn_dp_appl_cfg 74fae40b85570bd4a83d4a45eb2dee05 112 112 16 128 16 144
  show_header boolean mirk_boolean
  lumo_num integer u_int8
  hash_exmem_info nested lumo_tarn_exmem_info
  num_sigs count u_int32
  sig_list array lumo_tarn_dp_appl_sig num_sigs sum
record lumo_tarn_dp_appl_data 6f31f2ab35c46bda63067283fc99bf24 48 48 8 56 16 72
  show_header boolean mirk_boolean
  num_lumos count u_int8
  lumo_data array lumo_tarn_dp_appl_cfg num_lumos sum
record lumo_tarn_dp_tt_table 9035b091bd9713f7567017cbe2e56f08 364 368 20 384 104 488
  show_header boolean mirk_boolean
  show_agg_list boolean mirk_boolean
  show_filter_list boolean mirk_boolean
  show_ll_header boolean mirk_boolean
  show_ll_list boolean mirk_boolean
  display_all boolean mirk_boolean
  display_tc boolean mirk_boolean
  display_ll boolean mirk_boolean
  fdb_info nested lumo_tarn_fdb_mem_info
  lumo_num integer u_int8
  state integer u_int8
  learn_type integer u_int8
  agg_type integer u_int8
  min_mask integer u_int8
  tt_bit_flags integer u_int8
  aging_type integer u_int16
  num_prefixes integer u_int32
  duration integer u_int32
  start_time integer u_int32
  end_time integer u_int32
  agg_tc_list_ptr integer u_int64
  agg_tc_list nested lumo_tarn_dp_tc_list
  filter_tc_list_ptr integer u_int64
  filter_tc_list nested lumo_tarn_dp_tc_list
  learn_list_ptr integer u_int64
  learn_list nested lumo_tarn_dp_learn_list
  key_mask integer u_int32
  thruput_head_ptr integer u_int64
  thruput_entries integer u_int32
  delay_head_ptr integer u_int64
  delay_entries integer u_int32
record lumo_tarn_dp_tt_table_data f1ed07c033b05e484505be542bc9308f 48 48 8 56 16 72
  show_header boolean mirk_boolean
  num_lumos count u_int8
  lumo_data array lumo_tarn_dp_tt_table num_lumos sum
record lumo_tarn_dp_mp_tc_prefix fbe004f62f1d7cc30a8c75dac41c968e 136 136 16 152 40 192
  lumo_num integer u_int8
  cl_addr integer u_int64
  tc_list_head nested lumo_tarn_exmem_info
  tc_list_head_next integer u_int64
  tc_list nested lumo_tarn_dp_tc_list
  show_pfx_comm boolean mirk_boolean
record lumo_tarn_dp_mp_tc_prefix_lumo_data 711360b81716cdfdc00a905deaa73014 72 72 16 88 24 112
  prefix address ip_address
  num_lumos count u_int8
  lumo_data array lumo_tarn_dp_mp_tc_prefix num_lumos sum
record lumo_tarn_dp_mp_tc_prefix_data 4b537616bd52ae9760915de7a444c97a 48 48 8 56 16 72
  show_header boolean mirk_boolean
  total_prefixes integer u_int32
  num_prefixes count u_int8
  prefix_data array lumo_tarn_dp_mp_tc_prefix_lumo_data num_prefixes sum
record lumo_tarn_dp_mp_prefix 877f4706728a7ef61240d5ada90d521a 72 72 16 88 11 99
  complex_num integer u_int8
  prefix address ip_address
  flags integer u_int16
  tc_list_ptr integer u_int64
record lumo_tarn_dp_mp_prefix_complex_data 7b6d292586e45fb1cd81d6683d42da19 72 72 16 88 24 112
  lookup_prefix address ip_address
  num_complexes count u_int8
  complex_data array lumo_tarn_dp_mp_prefix num_complexes sum
record lumo_tarn_dp_mp_prefix_data eb7c2027f5bf174d47e3e2d2c4504a6f 48 48 8 56 16 72
  show_header boolean mirk_boolean
  num_prefixes count u_int8
  prefix_data array lumo_tarn_dp_mp_prefix_complex_data num_prefixes sum
record lumo_tarn_pal_mp_prefix ac9e5fcfde50ba72b735168c77bba633 76 80 20 96 11 107
  id integer u_int64
  flags integer u_int8
  prefix address ip_address
  tc_list_size integer u_int32
record lumo_tarn_pal_mp_prefix_data 241d16b4c4922cef34b251a15d1689cb 48 48 8 56 16 72
  show_header boolean mirk_boolean
  total_prefixes integer u_int32
  num_prefixes count u_int8
  prefix_data array lumo_tarn_pal_mp_prefix num_prefixes sum
)tables";

}  // namespace reference

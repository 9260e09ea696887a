// Drives the UART design through the backdoor classes of its generated model, each made
// as the model's constructor makes it.
module tb;
    uart_dut dut ();

    int errors = 0;
    task automatic check(bit ok, string what);
        if (!ok) begin
            $display("FAIL: %s", what);
            errors++;
        end
    endtask

    initial begin
        brx_reg_uart_ctrl_bkdr ctrl = new;
        brx_reg_uart_rxbuf_bkdr rxbuf5 = new(5);
        brx_reg_uart_ch_chmode_bkdr chmode1 = new(1);
        brx_mem_uart_fifo_bkdr fifo = new;
        qvt_rw::status_e st;
        bit [`QVT_BRX_DATA_WIDTH-1:0] d;

        // A register field by field: bits 7:4 and 31:24 belong to no field, so they are
        // dropped on the way in and read back as zero.
        ctrl.write(st, 'hFF12_34FF, 0, 0, 0);
        check(st == qvt_rw::IS_OK && dut.ctrl_q.en_q == 1'b1 && dut.ctrl_q.parity_q == 2'h3 &&
              dut.ctrl_q.stop_bits_q == 1'b1 && dut.ctrl_q.baud_div_q == 16'h1234,
              "ctrl write");
        ctrl.read(st, d, 0, 0, 0);
        check(st == qvt_rw::IS_OK && d == 'h0012_340F, "ctrl read back");

        // One element of a register array, told apart from its neighbour; its field is
        // read-only, so the write only answers an error.
        dut.rx_q4.data_q = 8'h44;
        dut.rx_q5.data_q = 8'hA5;
        rxbuf5.read(st, d, 0, 0, 0);
        check(st == qvt_rw::IS_OK && d == 'hA5, "rxbuf[5] read");
        rxbuf5.write(st, 'h1, 0, 0, 0);
        check(st == qvt_rw::ERROR && dut.rx_q5.data_q == 8'hA5, "rxbuf[5] write refused");

        // The second element of a regfile array: left to right, mode is bits 7:4 and rate
        // bits 3:0.
        dut.ch0.chmode_q.mode_q = 4'h1;
        chmode1.write(st, 'h9C, 0, 0, 0);
        check(st == qvt_rw::IS_OK && dut.ch1.chmode_q.mode_q == 4'h9 &&
              dut.ch1.chmode_q.rate_q == 4'hC, "ch[1].chmode write");
        check(dut.ch0.chmode_q.mode_q == 4'h1, "ch[0] untouched");
        chmode1.read(st, d, 0, 0, 0);
        check(st == qvt_rw::IS_OK && d == 'h9C, "ch[1].chmode read back");

        // A memory word.
        fifo.write(st, 7, 'hDEAD_BEEF, 0, 0, 0);
        check(st == qvt_rw::IS_OK && dut.fifo_mem[7] == 32'hDEAD_BEEF, "fifo[7] write");
        fifo.read(st, 7, d, 0, 0, 0);
        check(st == qvt_rw::IS_OK && d == 'hDEAD_BEEF, "fifo[7] read back");

        if (errors != 0) $fatal(1, "%0d backdoor checks failed", errors);
        $display("backdoor simulation: all checks passed");
        $finish;
    end
endmodule

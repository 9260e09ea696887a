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

        // A whole register.
        ctrl.write(st, 'h1234_5678, 0, 0, 0);
        check(st == qvt_rw::IS_OK && dut.ctrl_q == 32'h1234_5678, "ctrl write");
        ctrl.read(st, d, 0, 0, 0);
        check(st == qvt_rw::IS_OK && d == 'h1234_5678, "ctrl read back");

        // One element of a register array, told apart from its neighbour; its field is
        // read-only, so the write only answers an error.
        dut.rx_q4 = 32'h44;
        dut.rx_q5 = 32'hA5;
        rxbuf5.read(st, d, 0, 0, 0);
        check(st == qvt_rw::IS_OK && d == 'hA5, "rxbuf[5] read");
        rxbuf5.write(st, 'h1, 0, 0, 0);
        check(st == qvt_rw::ERROR && dut.rx_q5 == 32'hA5, "rxbuf[5] write refused");

        // Field by field, in the second element of a regfile array: mode is bits 31:28 and
        // rate bits 27:24, left to right.
        dut.ch0.mode_q = 4'h1;
        chmode1.write(st, 'h9C00_0000, 0, 0, 0);
        check(st == qvt_rw::IS_OK && dut.ch1.mode_q == 4'h9 && dut.ch1.rate_q == 4'hC,
              "ch[1].chmode write");
        check(dut.ch0.mode_q == 4'h1, "ch[0] untouched");
        chmode1.read(st, d, 0, 0, 0);
        check(st == qvt_rw::IS_OK && d == 'h9C00_0000, "ch[1].chmode read back");

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

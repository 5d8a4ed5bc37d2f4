-- Models of the primitives of the vendor's devices that such cores are made of, as far as their users' guides describe
-- them: truth tables, flip-flops, carry chains and distributed memories, without delays. For the library unisim.

library ieee;
use ieee.std_logic_1164.all;

package prove_bits is

    -- A number without unknown bits; those count as 0.
    function number_of(value : std_logic_vector) return natural;

    -- The bit of a truth table.
    function bit_at(truth : bit_vector; place : std_logic_vector) return std_logic;

    -- The last bits, as many as are wanted.
    function low_bits(value : bit_vector; count : positive) return std_logic_vector;

end package prove_bits;

package body prove_bits is

    function number_of(value : std_logic_vector) return natural is
        variable number : natural := 0;
    begin
        for i in value'range loop
            number := number * 2;
            if value(i) = '1' or value(i) = 'H' then
                number := number + 1;
            end if;
        end loop;
        return number;
    end function number_of;

    function bit_at(truth : bit_vector; place : std_logic_vector) return std_logic is
        alias bits : bit_vector(truth'length - 1 downto 0) is truth;
    begin
        return to_stdulogic(bits(number_of(place)));
    end function bit_at;

    function low_bits(value : bit_vector; count : positive) return std_logic_vector is
        constant bits  : bit_vector(value'length - 1 downto 0) := value;
        variable result : std_logic_vector(count - 1 downto 0) := (others => '0');
    begin
        for i in result'range loop
            if i < bits'length then
                result(i) := to_stdulogic(bits(i));
            end if;
        end loop;
        return result;
    end function low_bits;

end package body prove_bits;

library ieee;
use ieee.std_logic_1164.all;

package vcomponents is

    component LUT1 is
        generic (
            INIT : bit_vector(1 downto 0) := (others => '0')
        );
        port (
            O : out std_logic;
            I0 : in  std_logic
        );
    end component LUT1;

    component LUT2 is
        generic (
            INIT : bit_vector(3 downto 0) := (others => '0')
        );
        port (
            O : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic
        );
    end component LUT2;

    component LUT3 is
        generic (
            INIT : bit_vector(7 downto 0) := (others => '0')
        );
        port (
            O : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            I2 : in  std_logic
        );
    end component LUT3;

    component LUT4 is
        generic (
            INIT : bit_vector(15 downto 0) := (others => '0')
        );
        port (
            O : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            I2 : in  std_logic;
            I3 : in  std_logic
        );
    end component LUT4;

    component LUT5 is
        generic (
            INIT : bit_vector(31 downto 0) := (others => '0')
        );
        port (
            O : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            I2 : in  std_logic;
            I3 : in  std_logic;
            I4 : in  std_logic
        );
    end component LUT5;

    component LUT6 is
        generic (
            INIT : bit_vector(63 downto 0) := (others => '0')
        );
        port (
            O : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            I2 : in  std_logic;
            I3 : in  std_logic;
            I4 : in  std_logic;
            I5 : in  std_logic
        );
    end component LUT6;

    component LUT6_2 is
        generic (
            INIT : bit_vector(63 downto 0) := (others => '0')
        );
        port (
            O5 : out std_logic;
            O6 : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            I2 : in  std_logic;
            I3 : in  std_logic;
            I4 : in  std_logic;
            I5 : in  std_logic
        );
    end component LUT6_2;

    component FD is
        generic (
            INIT : bit := '0'
        );
        port (
            Q : out std_logic;
            C : in  std_logic;
            D : in  std_logic
        );
    end component FD;

    component FDE is
        generic (
            INIT : bit := '0'
        );
        port (
            Q : out std_logic;
            C : in  std_logic;
            CE : in  std_logic;
            D : in  std_logic
        );
    end component FDE;

    component FDR is
        generic (
            INIT : bit := '0'
        );
        port (
            Q : out std_logic;
            C : in  std_logic;
            D : in  std_logic;
            R : in  std_logic
        );
    end component FDR;

    component FDRE is
        generic (
            INIT : bit := '0'
        );
        port (
            Q : out std_logic;
            C : in  std_logic;
            CE : in  std_logic;
            D : in  std_logic;
            R : in  std_logic
        );
    end component FDRE;

    component FDS is
        generic (
            INIT : bit := '1'
        );
        port (
            Q : out std_logic;
            C : in  std_logic;
            D : in  std_logic;
            S : in  std_logic
        );
    end component FDS;

    component FDSE is
        generic (
            INIT : bit := '1'
        );
        port (
            Q : out std_logic;
            C : in  std_logic;
            CE : in  std_logic;
            D : in  std_logic;
            S : in  std_logic
        );
    end component FDSE;

    component FDRS is
        generic (
            INIT : bit := '0'
        );
        port (
            Q : out std_logic;
            C : in  std_logic;
            D : in  std_logic;
            R : in  std_logic;
            S : in  std_logic
        );
    end component FDRS;

    component FDRSE is
        generic (
            INIT : bit := '0'
        );
        port (
            Q : out std_logic;
            C : in  std_logic;
            CE : in  std_logic;
            D : in  std_logic;
            R : in  std_logic;
            S : in  std_logic
        );
    end component FDRSE;

    component FDC is
        generic (
            INIT : bit := '0'
        );
        port (
            Q : out std_logic;
            C : in  std_logic;
            D : in  std_logic;
            CLR : in  std_logic
        );
    end component FDC;

    component FDCE is
        generic (
            INIT : bit := '0'
        );
        port (
            Q : out std_logic;
            C : in  std_logic;
            CE : in  std_logic;
            D : in  std_logic;
            CLR : in  std_logic
        );
    end component FDCE;

    component FDP is
        generic (
            INIT : bit := '1'
        );
        port (
            Q : out std_logic;
            C : in  std_logic;
            D : in  std_logic;
            PRE : in  std_logic
        );
    end component FDP;

    component FDPE is
        generic (
            INIT : bit := '1'
        );
        port (
            Q : out std_logic;
            C : in  std_logic;
            CE : in  std_logic;
            D : in  std_logic;
            PRE : in  std_logic
        );
    end component FDPE;

    component MUXCY is
        port (
            O : out std_logic;
            CI : in  std_logic;
            DI : in  std_logic;
            S : in  std_logic
        );
    end component MUXCY;

    component XORCY is
        port (
            O : out std_logic;
            CI : in  std_logic;
            LI : in  std_logic
        );
    end component XORCY;

    component MUXF5 is
        port (
            O : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            S : in  std_logic
        );
    end component MUXF5;

    component MUXF6 is
        port (
            O : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            S : in  std_logic
        );
    end component MUXF6;

    component MUXF7 is
        port (
            O : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            S : in  std_logic
        );
    end component MUXF7;

    component MUXF8 is
        port (
            O : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            S : in  std_logic
        );
    end component MUXF8;

    component INV is
        port (
            O : out std_logic;
            I : in  std_logic
        );
    end component INV;

    component RAM16X1S is
        generic (
            INIT : bit_vector(15 downto 0) := (others => '0')
        );
        port (
            O : out std_logic;
            A0 : in  std_logic;
            A1 : in  std_logic;
            A2 : in  std_logic;
            A3 : in  std_logic;
            D : in  std_logic;
            WCLK : in  std_logic;
            WE : in  std_logic
        );
    end component RAM16X1S;

    component RAM32X1S is
        generic (
            INIT : bit_vector(31 downto 0) := (others => '0')
        );
        port (
            O : out std_logic;
            A0 : in  std_logic;
            A1 : in  std_logic;
            A2 : in  std_logic;
            A3 : in  std_logic;
            A4 : in  std_logic;
            D : in  std_logic;
            WCLK : in  std_logic;
            WE : in  std_logic
        );
    end component RAM32X1S;

    component RAM64X1S is
        generic (
            INIT : bit_vector(63 downto 0) := (others => '0')
        );
        port (
            O : out std_logic;
            A0 : in  std_logic;
            A1 : in  std_logic;
            A2 : in  std_logic;
            A3 : in  std_logic;
            A4 : in  std_logic;
            A5 : in  std_logic;
            D : in  std_logic;
            WCLK : in  std_logic;
            WE : in  std_logic
        );
    end component RAM64X1S;

    component RAM128X1S is
        generic (
            INIT : bit_vector(127 downto 0) := (others => '0')
        );
        port (
            O : out std_logic;
            A0 : in  std_logic;
            A1 : in  std_logic;
            A2 : in  std_logic;
            A3 : in  std_logic;
            A4 : in  std_logic;
            A5 : in  std_logic;
            A6 : in  std_logic;
            D : in  std_logic;
            WCLK : in  std_logic;
            WE : in  std_logic
        );
    end component RAM128X1S;

    component RAM256X1S is
        generic (
            INIT : bit_vector(255 downto 0) := (others => '0')
        );
        port (
            O : out std_logic;
            A : in  std_logic_vector(7 downto 0);
            D : in  std_logic;
            WCLK : in  std_logic;
            WE : in  std_logic
        );
    end component RAM256X1S;

    component RAM16X1D is
        generic (
            INIT : bit_vector(15 downto 0) := (others => '0')
        );
        port (
            DPO : out std_logic;
            SPO : out std_logic;
            A0 : in  std_logic;
            A1 : in  std_logic;
            A2 : in  std_logic;
            A3 : in  std_logic;
            D : in  std_logic;
            DPRA0 : in  std_logic;
            DPRA1 : in  std_logic;
            DPRA2 : in  std_logic;
            DPRA3 : in  std_logic;
            WCLK : in  std_logic;
            WE : in  std_logic
        );
    end component RAM16X1D;

    component RAM32X1D is
        generic (
            INIT : bit_vector(31 downto 0) := (others => '0')
        );
        port (
            DPO : out std_logic;
            SPO : out std_logic;
            A0 : in  std_logic;
            A1 : in  std_logic;
            A2 : in  std_logic;
            A3 : in  std_logic;
            A4 : in  std_logic;
            D : in  std_logic;
            DPRA0 : in  std_logic;
            DPRA1 : in  std_logic;
            DPRA2 : in  std_logic;
            DPRA3 : in  std_logic;
            DPRA4 : in  std_logic;
            WCLK : in  std_logic;
            WE : in  std_logic
        );
    end component RAM32X1D;

    component RAM64X1D is
        generic (
            INIT : bit_vector(63 downto 0) := (others => '0')
        );
        port (
            DPO : out std_logic;
            SPO : out std_logic;
            A0 : in  std_logic;
            A1 : in  std_logic;
            A2 : in  std_logic;
            A3 : in  std_logic;
            A4 : in  std_logic;
            A5 : in  std_logic;
            D : in  std_logic;
            DPRA0 : in  std_logic;
            DPRA1 : in  std_logic;
            DPRA2 : in  std_logic;
            DPRA3 : in  std_logic;
            DPRA4 : in  std_logic;
            DPRA5 : in  std_logic;
            WCLK : in  std_logic;
            WE : in  std_logic
        );
    end component RAM64X1D;

    component RAM128X1D is
        generic (
            INIT : bit_vector(127 downto 0) := (others => '0')
        );
        port (
            DPO : out std_logic;
            SPO : out std_logic;
            A : in  std_logic_vector(6 downto 0);
            D : in  std_logic;
            DPRA : in  std_logic_vector(6 downto 0);
            WCLK : in  std_logic;
            WE : in  std_logic
        );
    end component RAM128X1D;

    component RAM32M is
        generic (
            INIT_A : bit_vector(63 downto 0) := (others => '0');
            INIT_B : bit_vector(63 downto 0) := (others => '0');
            INIT_C : bit_vector(63 downto 0) := (others => '0');
            INIT_D : bit_vector(63 downto 0) := (others => '0')
        );
        port (
            DOA : out std_logic_vector(1 downto 0);
            DOB : out std_logic_vector(1 downto 0);
            DOC : out std_logic_vector(1 downto 0);
            DOD : out std_logic_vector(1 downto 0);
            ADDRA : in  std_logic_vector(4 downto 0);
            ADDRB : in  std_logic_vector(4 downto 0);
            ADDRC : in  std_logic_vector(4 downto 0);
            ADDRD : in  std_logic_vector(4 downto 0);
            DIA : in  std_logic_vector(1 downto 0);
            DIB : in  std_logic_vector(1 downto 0);
            DIC : in  std_logic_vector(1 downto 0);
            DID : in  std_logic_vector(1 downto 0);
            WCLK : in  std_logic;
            WE : in  std_logic
        );
    end component RAM32M;

    component RAM64M is
        generic (
            INIT_A : bit_vector(63 downto 0) := (others => '0');
            INIT_B : bit_vector(63 downto 0) := (others => '0');
            INIT_C : bit_vector(63 downto 0) := (others => '0');
            INIT_D : bit_vector(63 downto 0) := (others => '0')
        );
        port (
            DOA : out std_logic;
            DOB : out std_logic;
            DOC : out std_logic;
            DOD : out std_logic;
            ADDRA : in  std_logic_vector(5 downto 0);
            ADDRB : in  std_logic_vector(5 downto 0);
            ADDRC : in  std_logic_vector(5 downto 0);
            ADDRD : in  std_logic_vector(5 downto 0);
            DIA : in  std_logic;
            DIB : in  std_logic;
            DIC : in  std_logic;
            DID : in  std_logic;
            WCLK : in  std_logic;
            WE : in  std_logic
        );
    end component RAM64M;

    component LUT1_L is
        generic (
            INIT : bit_vector := "00"
        );
        port (
            LO : out std_logic;
            I0 : in  std_logic
        );
    end component;

    component LUT1_D is
        generic (
            INIT : bit_vector := "00"
        );
        port (
            O : out std_logic;
            LO : out std_logic;
            I0 : in  std_logic
        );
    end component;

    component LUT2_L is
        generic (
            INIT : bit_vector := X"0"
        );
        port (
            LO : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic
        );
    end component;

    component LUT2_D is
        generic (
            INIT : bit_vector := X"0"
        );
        port (
            O : out std_logic;
            LO : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic
        );
    end component;

    component LUT3_L is
        generic (
            INIT : bit_vector := X"00"
        );
        port (
            LO : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            I2 : in  std_logic
        );
    end component;

    component LUT3_D is
        generic (
            INIT : bit_vector := X"00"
        );
        port (
            O : out std_logic;
            LO : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            I2 : in  std_logic
        );
    end component;

    component LUT4_L is
        generic (
            INIT : bit_vector := X"0000"
        );
        port (
            LO : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            I2 : in  std_logic;
            I3 : in  std_logic
        );
    end component;

    component LUT4_D is
        generic (
            INIT : bit_vector := X"0000"
        );
        port (
            O : out std_logic;
            LO : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            I2 : in  std_logic;
            I3 : in  std_logic
        );
    end component;

    component LUT5_L is
        generic (
            INIT : bit_vector := X"00000000"
        );
        port (
            LO : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            I2 : in  std_logic;
            I3 : in  std_logic;
            I4 : in  std_logic
        );
    end component;

    component LUT5_D is
        generic (
            INIT : bit_vector := X"00000000"
        );
        port (
            O : out std_logic;
            LO : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            I2 : in  std_logic;
            I3 : in  std_logic;
            I4 : in  std_logic
        );
    end component;

    component LUT6_L is
        generic (
            INIT : bit_vector := X"0000000000000000"
        );
        port (
            LO : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            I2 : in  std_logic;
            I3 : in  std_logic;
            I4 : in  std_logic;
            I5 : in  std_logic
        );
    end component;

    component LUT6_D is
        generic (
            INIT : bit_vector := X"0000000000000000"
        );
        port (
            O : out std_logic;
            LO : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            I2 : in  std_logic;
            I3 : in  std_logic;
            I4 : in  std_logic;
            I5 : in  std_logic
        );
    end component;

    component MUXCY_L is
        port (
            LO : out std_logic;
            CI : in  std_logic;
            DI : in  std_logic;
            S : in  std_logic
        );
    end component;

    component MUXCY_D is
        port (
            O : out std_logic;
            LO : out std_logic;
            CI : in  std_logic;
            DI : in  std_logic;
            S : in  std_logic
        );
    end component;

    component XORCY_L is
        port (
            LO : out std_logic;
            CI : in  std_logic;
            LI : in  std_logic
        );
    end component;

    component XORCY_D is
        port (
            O : out std_logic;
            LO : out std_logic;
            CI : in  std_logic;
            LI : in  std_logic
        );
    end component;

    component MUXF5_L is
        port (
            LO : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            S : in  std_logic
        );
    end component;

    component MUXF5_D is
        port (
            O : out std_logic;
            LO : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            S : in  std_logic
        );
    end component;

    component MUXF6_L is
        port (
            LO : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            S : in  std_logic
        );
    end component;

    component MUXF6_D is
        port (
            O : out std_logic;
            LO : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            S : in  std_logic
        );
    end component;

    component MUXF7_L is
        port (
            LO : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            S : in  std_logic
        );
    end component;

    component MUXF7_D is
        port (
            O : out std_logic;
            LO : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            S : in  std_logic
        );
    end component;

    component MUXF8_L is
        port (
            LO : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            S : in  std_logic
        );
    end component;

    component MUXF8_D is
        port (
            O : out std_logic;
            LO : out std_logic;
            I0 : in  std_logic;
            I1 : in  std_logic;
            S : in  std_logic
        );
    end component;

    component CARRY4 is
        port (
            CO : out std_logic_vector(3 downto 0);
            O : out std_logic_vector(3 downto 0);
            CI : in  std_logic;
            CYINIT : in  std_logic;
            DI : in  std_logic_vector(3 downto 0);
            S : in  std_logic_vector(3 downto 0)
        );
    end component;

    component VCC is
        port (
            P : out std_logic
        );
    end component;

    component GND is
        port (
            G : out std_logic
        );
    end component;

    component BUF is
        port (
            O : out std_logic;
            I : in  std_logic
        );
    end component;

    component BUFG is
        port (
            O : out std_logic;
            I : in  std_logic
        );
    end component;

    component SRL16 is
        generic (
            INIT : bit_vector := X"0000"
        );
        port (
            Q : out std_logic;
            A0 : in  std_logic;
            A1 : in  std_logic;
            A2 : in  std_logic;
            A3 : in  std_logic;
            CLK : in  std_logic;
            D : in  std_logic
        );
    end component;

    component SRL16E is
        generic (
            INIT : bit_vector := X"0000"
        );
        port (
            Q : out std_logic;
            A0 : in  std_logic;
            A1 : in  std_logic;
            A2 : in  std_logic;
            A3 : in  std_logic;
            CE : in  std_logic;
            CLK : in  std_logic;
            D : in  std_logic
        );
    end component;

    component SRLC16E is
        generic (
            INIT : bit_vector := X"0000"
        );
        port (
            Q : out std_logic;
            Q15 : out std_logic;
            A0 : in  std_logic;
            A1 : in  std_logic;
            A2 : in  std_logic;
            A3 : in  std_logic;
            CE : in  std_logic;
            CLK : in  std_logic;
            D : in  std_logic
        );
    end component;

    component SRLC32E is
        generic (
            INIT : bit_vector := X"00000000"
        );
        port (
            Q : out std_logic;
            Q31 : out std_logic;
            A : in  std_logic_vector(4 downto 0);
            CE : in  std_logic;
            CLK : in  std_logic;
            D : in  std_logic
        );
    end component;

    component RAMB16_S1 is
        generic (
            INIT : bit_vector := "0";
            SRVAL : bit_vector := "0";
            WRITE_MODE : string := "WRITE_FIRST";
            INIT_00 : bit_vector(255 downto 0) := (others => '0');
            INIT_01 : bit_vector(255 downto 0) := (others => '0');
            INIT_02 : bit_vector(255 downto 0) := (others => '0');
            INIT_03 : bit_vector(255 downto 0) := (others => '0');
            INIT_04 : bit_vector(255 downto 0) := (others => '0');
            INIT_05 : bit_vector(255 downto 0) := (others => '0');
            INIT_06 : bit_vector(255 downto 0) := (others => '0');
            INIT_07 : bit_vector(255 downto 0) := (others => '0');
            INIT_08 : bit_vector(255 downto 0) := (others => '0');
            INIT_09 : bit_vector(255 downto 0) := (others => '0');
            INIT_0A : bit_vector(255 downto 0) := (others => '0');
            INIT_0B : bit_vector(255 downto 0) := (others => '0');
            INIT_0C : bit_vector(255 downto 0) := (others => '0');
            INIT_0D : bit_vector(255 downto 0) := (others => '0');
            INIT_0E : bit_vector(255 downto 0) := (others => '0');
            INIT_0F : bit_vector(255 downto 0) := (others => '0');
            INIT_10 : bit_vector(255 downto 0) := (others => '0');
            INIT_11 : bit_vector(255 downto 0) := (others => '0');
            INIT_12 : bit_vector(255 downto 0) := (others => '0');
            INIT_13 : bit_vector(255 downto 0) := (others => '0');
            INIT_14 : bit_vector(255 downto 0) := (others => '0');
            INIT_15 : bit_vector(255 downto 0) := (others => '0');
            INIT_16 : bit_vector(255 downto 0) := (others => '0');
            INIT_17 : bit_vector(255 downto 0) := (others => '0');
            INIT_18 : bit_vector(255 downto 0) := (others => '0');
            INIT_19 : bit_vector(255 downto 0) := (others => '0');
            INIT_1A : bit_vector(255 downto 0) := (others => '0');
            INIT_1B : bit_vector(255 downto 0) := (others => '0');
            INIT_1C : bit_vector(255 downto 0) := (others => '0');
            INIT_1D : bit_vector(255 downto 0) := (others => '0');
            INIT_1E : bit_vector(255 downto 0) := (others => '0');
            INIT_1F : bit_vector(255 downto 0) := (others => '0');
            INIT_20 : bit_vector(255 downto 0) := (others => '0');
            INIT_21 : bit_vector(255 downto 0) := (others => '0');
            INIT_22 : bit_vector(255 downto 0) := (others => '0');
            INIT_23 : bit_vector(255 downto 0) := (others => '0');
            INIT_24 : bit_vector(255 downto 0) := (others => '0');
            INIT_25 : bit_vector(255 downto 0) := (others => '0');
            INIT_26 : bit_vector(255 downto 0) := (others => '0');
            INIT_27 : bit_vector(255 downto 0) := (others => '0');
            INIT_28 : bit_vector(255 downto 0) := (others => '0');
            INIT_29 : bit_vector(255 downto 0) := (others => '0');
            INIT_2A : bit_vector(255 downto 0) := (others => '0');
            INIT_2B : bit_vector(255 downto 0) := (others => '0');
            INIT_2C : bit_vector(255 downto 0) := (others => '0');
            INIT_2D : bit_vector(255 downto 0) := (others => '0');
            INIT_2E : bit_vector(255 downto 0) := (others => '0');
            INIT_2F : bit_vector(255 downto 0) := (others => '0');
            INIT_30 : bit_vector(255 downto 0) := (others => '0');
            INIT_31 : bit_vector(255 downto 0) := (others => '0');
            INIT_32 : bit_vector(255 downto 0) := (others => '0');
            INIT_33 : bit_vector(255 downto 0) := (others => '0');
            INIT_34 : bit_vector(255 downto 0) := (others => '0');
            INIT_35 : bit_vector(255 downto 0) := (others => '0');
            INIT_36 : bit_vector(255 downto 0) := (others => '0');
            INIT_37 : bit_vector(255 downto 0) := (others => '0');
            INIT_38 : bit_vector(255 downto 0) := (others => '0');
            INIT_39 : bit_vector(255 downto 0) := (others => '0');
            INIT_3A : bit_vector(255 downto 0) := (others => '0');
            INIT_3B : bit_vector(255 downto 0) := (others => '0');
            INIT_3C : bit_vector(255 downto 0) := (others => '0');
            INIT_3D : bit_vector(255 downto 0) := (others => '0');
            INIT_3E : bit_vector(255 downto 0) := (others => '0');
            INIT_3F : bit_vector(255 downto 0) := (others => '0')
        );
        port (
            DO : out std_logic_vector(0 downto 0);
            ADDR : in  std_logic_vector(13 downto 0);
            CLK : in  std_logic;
            DI : in  std_logic_vector(0 downto 0);
            EN : in  std_logic;
            SSR : in  std_logic;
            WE : in  std_logic
        );
    end component;

    component RAMB16_S2 is
        generic (
            INIT : bit_vector := "00";
            SRVAL : bit_vector := "00";
            WRITE_MODE : string := "WRITE_FIRST";
            INIT_00 : bit_vector(255 downto 0) := (others => '0');
            INIT_01 : bit_vector(255 downto 0) := (others => '0');
            INIT_02 : bit_vector(255 downto 0) := (others => '0');
            INIT_03 : bit_vector(255 downto 0) := (others => '0');
            INIT_04 : bit_vector(255 downto 0) := (others => '0');
            INIT_05 : bit_vector(255 downto 0) := (others => '0');
            INIT_06 : bit_vector(255 downto 0) := (others => '0');
            INIT_07 : bit_vector(255 downto 0) := (others => '0');
            INIT_08 : bit_vector(255 downto 0) := (others => '0');
            INIT_09 : bit_vector(255 downto 0) := (others => '0');
            INIT_0A : bit_vector(255 downto 0) := (others => '0');
            INIT_0B : bit_vector(255 downto 0) := (others => '0');
            INIT_0C : bit_vector(255 downto 0) := (others => '0');
            INIT_0D : bit_vector(255 downto 0) := (others => '0');
            INIT_0E : bit_vector(255 downto 0) := (others => '0');
            INIT_0F : bit_vector(255 downto 0) := (others => '0');
            INIT_10 : bit_vector(255 downto 0) := (others => '0');
            INIT_11 : bit_vector(255 downto 0) := (others => '0');
            INIT_12 : bit_vector(255 downto 0) := (others => '0');
            INIT_13 : bit_vector(255 downto 0) := (others => '0');
            INIT_14 : bit_vector(255 downto 0) := (others => '0');
            INIT_15 : bit_vector(255 downto 0) := (others => '0');
            INIT_16 : bit_vector(255 downto 0) := (others => '0');
            INIT_17 : bit_vector(255 downto 0) := (others => '0');
            INIT_18 : bit_vector(255 downto 0) := (others => '0');
            INIT_19 : bit_vector(255 downto 0) := (others => '0');
            INIT_1A : bit_vector(255 downto 0) := (others => '0');
            INIT_1B : bit_vector(255 downto 0) := (others => '0');
            INIT_1C : bit_vector(255 downto 0) := (others => '0');
            INIT_1D : bit_vector(255 downto 0) := (others => '0');
            INIT_1E : bit_vector(255 downto 0) := (others => '0');
            INIT_1F : bit_vector(255 downto 0) := (others => '0');
            INIT_20 : bit_vector(255 downto 0) := (others => '0');
            INIT_21 : bit_vector(255 downto 0) := (others => '0');
            INIT_22 : bit_vector(255 downto 0) := (others => '0');
            INIT_23 : bit_vector(255 downto 0) := (others => '0');
            INIT_24 : bit_vector(255 downto 0) := (others => '0');
            INIT_25 : bit_vector(255 downto 0) := (others => '0');
            INIT_26 : bit_vector(255 downto 0) := (others => '0');
            INIT_27 : bit_vector(255 downto 0) := (others => '0');
            INIT_28 : bit_vector(255 downto 0) := (others => '0');
            INIT_29 : bit_vector(255 downto 0) := (others => '0');
            INIT_2A : bit_vector(255 downto 0) := (others => '0');
            INIT_2B : bit_vector(255 downto 0) := (others => '0');
            INIT_2C : bit_vector(255 downto 0) := (others => '0');
            INIT_2D : bit_vector(255 downto 0) := (others => '0');
            INIT_2E : bit_vector(255 downto 0) := (others => '0');
            INIT_2F : bit_vector(255 downto 0) := (others => '0');
            INIT_30 : bit_vector(255 downto 0) := (others => '0');
            INIT_31 : bit_vector(255 downto 0) := (others => '0');
            INIT_32 : bit_vector(255 downto 0) := (others => '0');
            INIT_33 : bit_vector(255 downto 0) := (others => '0');
            INIT_34 : bit_vector(255 downto 0) := (others => '0');
            INIT_35 : bit_vector(255 downto 0) := (others => '0');
            INIT_36 : bit_vector(255 downto 0) := (others => '0');
            INIT_37 : bit_vector(255 downto 0) := (others => '0');
            INIT_38 : bit_vector(255 downto 0) := (others => '0');
            INIT_39 : bit_vector(255 downto 0) := (others => '0');
            INIT_3A : bit_vector(255 downto 0) := (others => '0');
            INIT_3B : bit_vector(255 downto 0) := (others => '0');
            INIT_3C : bit_vector(255 downto 0) := (others => '0');
            INIT_3D : bit_vector(255 downto 0) := (others => '0');
            INIT_3E : bit_vector(255 downto 0) := (others => '0');
            INIT_3F : bit_vector(255 downto 0) := (others => '0')
        );
        port (
            DO : out std_logic_vector(1 downto 0);
            ADDR : in  std_logic_vector(12 downto 0);
            CLK : in  std_logic;
            DI : in  std_logic_vector(1 downto 0);
            EN : in  std_logic;
            SSR : in  std_logic;
            WE : in  std_logic
        );
    end component;

    component RAMB16_S4 is
        generic (
            INIT : bit_vector := X"0";
            SRVAL : bit_vector := X"0";
            WRITE_MODE : string := "WRITE_FIRST";
            INIT_00 : bit_vector(255 downto 0) := (others => '0');
            INIT_01 : bit_vector(255 downto 0) := (others => '0');
            INIT_02 : bit_vector(255 downto 0) := (others => '0');
            INIT_03 : bit_vector(255 downto 0) := (others => '0');
            INIT_04 : bit_vector(255 downto 0) := (others => '0');
            INIT_05 : bit_vector(255 downto 0) := (others => '0');
            INIT_06 : bit_vector(255 downto 0) := (others => '0');
            INIT_07 : bit_vector(255 downto 0) := (others => '0');
            INIT_08 : bit_vector(255 downto 0) := (others => '0');
            INIT_09 : bit_vector(255 downto 0) := (others => '0');
            INIT_0A : bit_vector(255 downto 0) := (others => '0');
            INIT_0B : bit_vector(255 downto 0) := (others => '0');
            INIT_0C : bit_vector(255 downto 0) := (others => '0');
            INIT_0D : bit_vector(255 downto 0) := (others => '0');
            INIT_0E : bit_vector(255 downto 0) := (others => '0');
            INIT_0F : bit_vector(255 downto 0) := (others => '0');
            INIT_10 : bit_vector(255 downto 0) := (others => '0');
            INIT_11 : bit_vector(255 downto 0) := (others => '0');
            INIT_12 : bit_vector(255 downto 0) := (others => '0');
            INIT_13 : bit_vector(255 downto 0) := (others => '0');
            INIT_14 : bit_vector(255 downto 0) := (others => '0');
            INIT_15 : bit_vector(255 downto 0) := (others => '0');
            INIT_16 : bit_vector(255 downto 0) := (others => '0');
            INIT_17 : bit_vector(255 downto 0) := (others => '0');
            INIT_18 : bit_vector(255 downto 0) := (others => '0');
            INIT_19 : bit_vector(255 downto 0) := (others => '0');
            INIT_1A : bit_vector(255 downto 0) := (others => '0');
            INIT_1B : bit_vector(255 downto 0) := (others => '0');
            INIT_1C : bit_vector(255 downto 0) := (others => '0');
            INIT_1D : bit_vector(255 downto 0) := (others => '0');
            INIT_1E : bit_vector(255 downto 0) := (others => '0');
            INIT_1F : bit_vector(255 downto 0) := (others => '0');
            INIT_20 : bit_vector(255 downto 0) := (others => '0');
            INIT_21 : bit_vector(255 downto 0) := (others => '0');
            INIT_22 : bit_vector(255 downto 0) := (others => '0');
            INIT_23 : bit_vector(255 downto 0) := (others => '0');
            INIT_24 : bit_vector(255 downto 0) := (others => '0');
            INIT_25 : bit_vector(255 downto 0) := (others => '0');
            INIT_26 : bit_vector(255 downto 0) := (others => '0');
            INIT_27 : bit_vector(255 downto 0) := (others => '0');
            INIT_28 : bit_vector(255 downto 0) := (others => '0');
            INIT_29 : bit_vector(255 downto 0) := (others => '0');
            INIT_2A : bit_vector(255 downto 0) := (others => '0');
            INIT_2B : bit_vector(255 downto 0) := (others => '0');
            INIT_2C : bit_vector(255 downto 0) := (others => '0');
            INIT_2D : bit_vector(255 downto 0) := (others => '0');
            INIT_2E : bit_vector(255 downto 0) := (others => '0');
            INIT_2F : bit_vector(255 downto 0) := (others => '0');
            INIT_30 : bit_vector(255 downto 0) := (others => '0');
            INIT_31 : bit_vector(255 downto 0) := (others => '0');
            INIT_32 : bit_vector(255 downto 0) := (others => '0');
            INIT_33 : bit_vector(255 downto 0) := (others => '0');
            INIT_34 : bit_vector(255 downto 0) := (others => '0');
            INIT_35 : bit_vector(255 downto 0) := (others => '0');
            INIT_36 : bit_vector(255 downto 0) := (others => '0');
            INIT_37 : bit_vector(255 downto 0) := (others => '0');
            INIT_38 : bit_vector(255 downto 0) := (others => '0');
            INIT_39 : bit_vector(255 downto 0) := (others => '0');
            INIT_3A : bit_vector(255 downto 0) := (others => '0');
            INIT_3B : bit_vector(255 downto 0) := (others => '0');
            INIT_3C : bit_vector(255 downto 0) := (others => '0');
            INIT_3D : bit_vector(255 downto 0) := (others => '0');
            INIT_3E : bit_vector(255 downto 0) := (others => '0');
            INIT_3F : bit_vector(255 downto 0) := (others => '0')
        );
        port (
            DO : out std_logic_vector(3 downto 0);
            ADDR : in  std_logic_vector(11 downto 0);
            CLK : in  std_logic;
            DI : in  std_logic_vector(3 downto 0);
            EN : in  std_logic;
            SSR : in  std_logic;
            WE : in  std_logic
        );
    end component;

    component RAMB16_S9 is
        generic (
            INIT : bit_vector := X"000";
            SRVAL : bit_vector := X"000";
            WRITE_MODE : string := "WRITE_FIRST";
            INIT_00 : bit_vector(255 downto 0) := (others => '0');
            INIT_01 : bit_vector(255 downto 0) := (others => '0');
            INIT_02 : bit_vector(255 downto 0) := (others => '0');
            INIT_03 : bit_vector(255 downto 0) := (others => '0');
            INIT_04 : bit_vector(255 downto 0) := (others => '0');
            INIT_05 : bit_vector(255 downto 0) := (others => '0');
            INIT_06 : bit_vector(255 downto 0) := (others => '0');
            INIT_07 : bit_vector(255 downto 0) := (others => '0');
            INIT_08 : bit_vector(255 downto 0) := (others => '0');
            INIT_09 : bit_vector(255 downto 0) := (others => '0');
            INIT_0A : bit_vector(255 downto 0) := (others => '0');
            INIT_0B : bit_vector(255 downto 0) := (others => '0');
            INIT_0C : bit_vector(255 downto 0) := (others => '0');
            INIT_0D : bit_vector(255 downto 0) := (others => '0');
            INIT_0E : bit_vector(255 downto 0) := (others => '0');
            INIT_0F : bit_vector(255 downto 0) := (others => '0');
            INIT_10 : bit_vector(255 downto 0) := (others => '0');
            INIT_11 : bit_vector(255 downto 0) := (others => '0');
            INIT_12 : bit_vector(255 downto 0) := (others => '0');
            INIT_13 : bit_vector(255 downto 0) := (others => '0');
            INIT_14 : bit_vector(255 downto 0) := (others => '0');
            INIT_15 : bit_vector(255 downto 0) := (others => '0');
            INIT_16 : bit_vector(255 downto 0) := (others => '0');
            INIT_17 : bit_vector(255 downto 0) := (others => '0');
            INIT_18 : bit_vector(255 downto 0) := (others => '0');
            INIT_19 : bit_vector(255 downto 0) := (others => '0');
            INIT_1A : bit_vector(255 downto 0) := (others => '0');
            INIT_1B : bit_vector(255 downto 0) := (others => '0');
            INIT_1C : bit_vector(255 downto 0) := (others => '0');
            INIT_1D : bit_vector(255 downto 0) := (others => '0');
            INIT_1E : bit_vector(255 downto 0) := (others => '0');
            INIT_1F : bit_vector(255 downto 0) := (others => '0');
            INIT_20 : bit_vector(255 downto 0) := (others => '0');
            INIT_21 : bit_vector(255 downto 0) := (others => '0');
            INIT_22 : bit_vector(255 downto 0) := (others => '0');
            INIT_23 : bit_vector(255 downto 0) := (others => '0');
            INIT_24 : bit_vector(255 downto 0) := (others => '0');
            INIT_25 : bit_vector(255 downto 0) := (others => '0');
            INIT_26 : bit_vector(255 downto 0) := (others => '0');
            INIT_27 : bit_vector(255 downto 0) := (others => '0');
            INIT_28 : bit_vector(255 downto 0) := (others => '0');
            INIT_29 : bit_vector(255 downto 0) := (others => '0');
            INIT_2A : bit_vector(255 downto 0) := (others => '0');
            INIT_2B : bit_vector(255 downto 0) := (others => '0');
            INIT_2C : bit_vector(255 downto 0) := (others => '0');
            INIT_2D : bit_vector(255 downto 0) := (others => '0');
            INIT_2E : bit_vector(255 downto 0) := (others => '0');
            INIT_2F : bit_vector(255 downto 0) := (others => '0');
            INIT_30 : bit_vector(255 downto 0) := (others => '0');
            INIT_31 : bit_vector(255 downto 0) := (others => '0');
            INIT_32 : bit_vector(255 downto 0) := (others => '0');
            INIT_33 : bit_vector(255 downto 0) := (others => '0');
            INIT_34 : bit_vector(255 downto 0) := (others => '0');
            INIT_35 : bit_vector(255 downto 0) := (others => '0');
            INIT_36 : bit_vector(255 downto 0) := (others => '0');
            INIT_37 : bit_vector(255 downto 0) := (others => '0');
            INIT_38 : bit_vector(255 downto 0) := (others => '0');
            INIT_39 : bit_vector(255 downto 0) := (others => '0');
            INIT_3A : bit_vector(255 downto 0) := (others => '0');
            INIT_3B : bit_vector(255 downto 0) := (others => '0');
            INIT_3C : bit_vector(255 downto 0) := (others => '0');
            INIT_3D : bit_vector(255 downto 0) := (others => '0');
            INIT_3E : bit_vector(255 downto 0) := (others => '0');
            INIT_3F : bit_vector(255 downto 0) := (others => '0');
            INITP_00 : bit_vector(255 downto 0) := (others => '0');
            INITP_01 : bit_vector(255 downto 0) := (others => '0');
            INITP_02 : bit_vector(255 downto 0) := (others => '0');
            INITP_03 : bit_vector(255 downto 0) := (others => '0');
            INITP_04 : bit_vector(255 downto 0) := (others => '0');
            INITP_05 : bit_vector(255 downto 0) := (others => '0');
            INITP_06 : bit_vector(255 downto 0) := (others => '0');
            INITP_07 : bit_vector(255 downto 0) := (others => '0')
        );
        port (
            DO : out std_logic_vector(7 downto 0);
            DOP : out std_logic_vector(0 downto 0);
            ADDR : in  std_logic_vector(10 downto 0);
            CLK : in  std_logic;
            DI : in  std_logic_vector(7 downto 0);
            DIP : in  std_logic_vector(0 downto 0);
            EN : in  std_logic;
            SSR : in  std_logic;
            WE : in  std_logic
        );
    end component;

    component RAMB16_S18 is
        generic (
            INIT : bit_vector := X"00000";
            SRVAL : bit_vector := X"00000";
            WRITE_MODE : string := "WRITE_FIRST";
            INIT_00 : bit_vector(255 downto 0) := (others => '0');
            INIT_01 : bit_vector(255 downto 0) := (others => '0');
            INIT_02 : bit_vector(255 downto 0) := (others => '0');
            INIT_03 : bit_vector(255 downto 0) := (others => '0');
            INIT_04 : bit_vector(255 downto 0) := (others => '0');
            INIT_05 : bit_vector(255 downto 0) := (others => '0');
            INIT_06 : bit_vector(255 downto 0) := (others => '0');
            INIT_07 : bit_vector(255 downto 0) := (others => '0');
            INIT_08 : bit_vector(255 downto 0) := (others => '0');
            INIT_09 : bit_vector(255 downto 0) := (others => '0');
            INIT_0A : bit_vector(255 downto 0) := (others => '0');
            INIT_0B : bit_vector(255 downto 0) := (others => '0');
            INIT_0C : bit_vector(255 downto 0) := (others => '0');
            INIT_0D : bit_vector(255 downto 0) := (others => '0');
            INIT_0E : bit_vector(255 downto 0) := (others => '0');
            INIT_0F : bit_vector(255 downto 0) := (others => '0');
            INIT_10 : bit_vector(255 downto 0) := (others => '0');
            INIT_11 : bit_vector(255 downto 0) := (others => '0');
            INIT_12 : bit_vector(255 downto 0) := (others => '0');
            INIT_13 : bit_vector(255 downto 0) := (others => '0');
            INIT_14 : bit_vector(255 downto 0) := (others => '0');
            INIT_15 : bit_vector(255 downto 0) := (others => '0');
            INIT_16 : bit_vector(255 downto 0) := (others => '0');
            INIT_17 : bit_vector(255 downto 0) := (others => '0');
            INIT_18 : bit_vector(255 downto 0) := (others => '0');
            INIT_19 : bit_vector(255 downto 0) := (others => '0');
            INIT_1A : bit_vector(255 downto 0) := (others => '0');
            INIT_1B : bit_vector(255 downto 0) := (others => '0');
            INIT_1C : bit_vector(255 downto 0) := (others => '0');
            INIT_1D : bit_vector(255 downto 0) := (others => '0');
            INIT_1E : bit_vector(255 downto 0) := (others => '0');
            INIT_1F : bit_vector(255 downto 0) := (others => '0');
            INIT_20 : bit_vector(255 downto 0) := (others => '0');
            INIT_21 : bit_vector(255 downto 0) := (others => '0');
            INIT_22 : bit_vector(255 downto 0) := (others => '0');
            INIT_23 : bit_vector(255 downto 0) := (others => '0');
            INIT_24 : bit_vector(255 downto 0) := (others => '0');
            INIT_25 : bit_vector(255 downto 0) := (others => '0');
            INIT_26 : bit_vector(255 downto 0) := (others => '0');
            INIT_27 : bit_vector(255 downto 0) := (others => '0');
            INIT_28 : bit_vector(255 downto 0) := (others => '0');
            INIT_29 : bit_vector(255 downto 0) := (others => '0');
            INIT_2A : bit_vector(255 downto 0) := (others => '0');
            INIT_2B : bit_vector(255 downto 0) := (others => '0');
            INIT_2C : bit_vector(255 downto 0) := (others => '0');
            INIT_2D : bit_vector(255 downto 0) := (others => '0');
            INIT_2E : bit_vector(255 downto 0) := (others => '0');
            INIT_2F : bit_vector(255 downto 0) := (others => '0');
            INIT_30 : bit_vector(255 downto 0) := (others => '0');
            INIT_31 : bit_vector(255 downto 0) := (others => '0');
            INIT_32 : bit_vector(255 downto 0) := (others => '0');
            INIT_33 : bit_vector(255 downto 0) := (others => '0');
            INIT_34 : bit_vector(255 downto 0) := (others => '0');
            INIT_35 : bit_vector(255 downto 0) := (others => '0');
            INIT_36 : bit_vector(255 downto 0) := (others => '0');
            INIT_37 : bit_vector(255 downto 0) := (others => '0');
            INIT_38 : bit_vector(255 downto 0) := (others => '0');
            INIT_39 : bit_vector(255 downto 0) := (others => '0');
            INIT_3A : bit_vector(255 downto 0) := (others => '0');
            INIT_3B : bit_vector(255 downto 0) := (others => '0');
            INIT_3C : bit_vector(255 downto 0) := (others => '0');
            INIT_3D : bit_vector(255 downto 0) := (others => '0');
            INIT_3E : bit_vector(255 downto 0) := (others => '0');
            INIT_3F : bit_vector(255 downto 0) := (others => '0');
            INITP_00 : bit_vector(255 downto 0) := (others => '0');
            INITP_01 : bit_vector(255 downto 0) := (others => '0');
            INITP_02 : bit_vector(255 downto 0) := (others => '0');
            INITP_03 : bit_vector(255 downto 0) := (others => '0');
            INITP_04 : bit_vector(255 downto 0) := (others => '0');
            INITP_05 : bit_vector(255 downto 0) := (others => '0');
            INITP_06 : bit_vector(255 downto 0) := (others => '0');
            INITP_07 : bit_vector(255 downto 0) := (others => '0')
        );
        port (
            DO : out std_logic_vector(15 downto 0);
            DOP : out std_logic_vector(1 downto 0);
            ADDR : in  std_logic_vector(9 downto 0);
            CLK : in  std_logic;
            DI : in  std_logic_vector(15 downto 0);
            DIP : in  std_logic_vector(1 downto 0);
            EN : in  std_logic;
            SSR : in  std_logic;
            WE : in  std_logic
        );
    end component;

    component RAMB16_S36 is
        generic (
            INIT : bit_vector := X"000000000";
            SRVAL : bit_vector := X"000000000";
            WRITE_MODE : string := "WRITE_FIRST";
            INIT_00 : bit_vector(255 downto 0) := (others => '0');
            INIT_01 : bit_vector(255 downto 0) := (others => '0');
            INIT_02 : bit_vector(255 downto 0) := (others => '0');
            INIT_03 : bit_vector(255 downto 0) := (others => '0');
            INIT_04 : bit_vector(255 downto 0) := (others => '0');
            INIT_05 : bit_vector(255 downto 0) := (others => '0');
            INIT_06 : bit_vector(255 downto 0) := (others => '0');
            INIT_07 : bit_vector(255 downto 0) := (others => '0');
            INIT_08 : bit_vector(255 downto 0) := (others => '0');
            INIT_09 : bit_vector(255 downto 0) := (others => '0');
            INIT_0A : bit_vector(255 downto 0) := (others => '0');
            INIT_0B : bit_vector(255 downto 0) := (others => '0');
            INIT_0C : bit_vector(255 downto 0) := (others => '0');
            INIT_0D : bit_vector(255 downto 0) := (others => '0');
            INIT_0E : bit_vector(255 downto 0) := (others => '0');
            INIT_0F : bit_vector(255 downto 0) := (others => '0');
            INIT_10 : bit_vector(255 downto 0) := (others => '0');
            INIT_11 : bit_vector(255 downto 0) := (others => '0');
            INIT_12 : bit_vector(255 downto 0) := (others => '0');
            INIT_13 : bit_vector(255 downto 0) := (others => '0');
            INIT_14 : bit_vector(255 downto 0) := (others => '0');
            INIT_15 : bit_vector(255 downto 0) := (others => '0');
            INIT_16 : bit_vector(255 downto 0) := (others => '0');
            INIT_17 : bit_vector(255 downto 0) := (others => '0');
            INIT_18 : bit_vector(255 downto 0) := (others => '0');
            INIT_19 : bit_vector(255 downto 0) := (others => '0');
            INIT_1A : bit_vector(255 downto 0) := (others => '0');
            INIT_1B : bit_vector(255 downto 0) := (others => '0');
            INIT_1C : bit_vector(255 downto 0) := (others => '0');
            INIT_1D : bit_vector(255 downto 0) := (others => '0');
            INIT_1E : bit_vector(255 downto 0) := (others => '0');
            INIT_1F : bit_vector(255 downto 0) := (others => '0');
            INIT_20 : bit_vector(255 downto 0) := (others => '0');
            INIT_21 : bit_vector(255 downto 0) := (others => '0');
            INIT_22 : bit_vector(255 downto 0) := (others => '0');
            INIT_23 : bit_vector(255 downto 0) := (others => '0');
            INIT_24 : bit_vector(255 downto 0) := (others => '0');
            INIT_25 : bit_vector(255 downto 0) := (others => '0');
            INIT_26 : bit_vector(255 downto 0) := (others => '0');
            INIT_27 : bit_vector(255 downto 0) := (others => '0');
            INIT_28 : bit_vector(255 downto 0) := (others => '0');
            INIT_29 : bit_vector(255 downto 0) := (others => '0');
            INIT_2A : bit_vector(255 downto 0) := (others => '0');
            INIT_2B : bit_vector(255 downto 0) := (others => '0');
            INIT_2C : bit_vector(255 downto 0) := (others => '0');
            INIT_2D : bit_vector(255 downto 0) := (others => '0');
            INIT_2E : bit_vector(255 downto 0) := (others => '0');
            INIT_2F : bit_vector(255 downto 0) := (others => '0');
            INIT_30 : bit_vector(255 downto 0) := (others => '0');
            INIT_31 : bit_vector(255 downto 0) := (others => '0');
            INIT_32 : bit_vector(255 downto 0) := (others => '0');
            INIT_33 : bit_vector(255 downto 0) := (others => '0');
            INIT_34 : bit_vector(255 downto 0) := (others => '0');
            INIT_35 : bit_vector(255 downto 0) := (others => '0');
            INIT_36 : bit_vector(255 downto 0) := (others => '0');
            INIT_37 : bit_vector(255 downto 0) := (others => '0');
            INIT_38 : bit_vector(255 downto 0) := (others => '0');
            INIT_39 : bit_vector(255 downto 0) := (others => '0');
            INIT_3A : bit_vector(255 downto 0) := (others => '0');
            INIT_3B : bit_vector(255 downto 0) := (others => '0');
            INIT_3C : bit_vector(255 downto 0) := (others => '0');
            INIT_3D : bit_vector(255 downto 0) := (others => '0');
            INIT_3E : bit_vector(255 downto 0) := (others => '0');
            INIT_3F : bit_vector(255 downto 0) := (others => '0');
            INITP_00 : bit_vector(255 downto 0) := (others => '0');
            INITP_01 : bit_vector(255 downto 0) := (others => '0');
            INITP_02 : bit_vector(255 downto 0) := (others => '0');
            INITP_03 : bit_vector(255 downto 0) := (others => '0');
            INITP_04 : bit_vector(255 downto 0) := (others => '0');
            INITP_05 : bit_vector(255 downto 0) := (others => '0');
            INITP_06 : bit_vector(255 downto 0) := (others => '0');
            INITP_07 : bit_vector(255 downto 0) := (others => '0')
        );
        port (
            DO : out std_logic_vector(31 downto 0);
            DOP : out std_logic_vector(3 downto 0);
            ADDR : in  std_logic_vector(8 downto 0);
            CLK : in  std_logic;
            DI : in  std_logic_vector(31 downto 0);
            DIP : in  std_logic_vector(3 downto 0);
            EN : in  std_logic;
            SSR : in  std_logic;
            WE : in  std_logic
        );
    end component;

end package vcomponents;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity LUT1 is
    generic (
        INIT : bit_vector(1 downto 0) := (others => '0')
    );
    port (
        O : out std_logic;
        I0 : in  std_logic
    );
end entity LUT1;

architecture model of LUT1 is
begin
    O <= bit_at(INIT, "" & I0);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity LUT2 is
    generic (
        INIT : bit_vector(3 downto 0) := (others => '0')
    );
    port (
        O : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic
    );
end entity LUT2;

architecture model of LUT2 is
begin
    O <= bit_at(INIT, I1 & I0);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity LUT3 is
    generic (
        INIT : bit_vector(7 downto 0) := (others => '0')
    );
    port (
        O : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        I2 : in  std_logic
    );
end entity LUT3;

architecture model of LUT3 is
begin
    O <= bit_at(INIT, I2 & I1 & I0);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity LUT4 is
    generic (
        INIT : bit_vector(15 downto 0) := (others => '0')
    );
    port (
        O : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        I2 : in  std_logic;
        I3 : in  std_logic
    );
end entity LUT4;

architecture model of LUT4 is
begin
    O <= bit_at(INIT, I3 & I2 & I1 & I0);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity LUT5 is
    generic (
        INIT : bit_vector(31 downto 0) := (others => '0')
    );
    port (
        O : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        I2 : in  std_logic;
        I3 : in  std_logic;
        I4 : in  std_logic
    );
end entity LUT5;

architecture model of LUT5 is
begin
    O <= bit_at(INIT, I4 & I3 & I2 & I1 & I0);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity LUT6 is
    generic (
        INIT : bit_vector(63 downto 0) := (others => '0')
    );
    port (
        O : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        I2 : in  std_logic;
        I3 : in  std_logic;
        I4 : in  std_logic;
        I5 : in  std_logic
    );
end entity LUT6;

architecture model of LUT6 is
begin
    O <= bit_at(INIT, I5 & I4 & I3 & I2 & I1 & I0);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity LUT6_2 is
    generic (
        INIT : bit_vector(63 downto 0) := (others => '0')
    );
    port (
        O5 : out std_logic;
        O6 : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        I2 : in  std_logic;
        I3 : in  std_logic;
        I4 : in  std_logic;
        I5 : in  std_logic
    );
end entity LUT6_2;

architecture model of LUT6_2 is
begin
    O5 <= bit_at(INIT, '0' & I4 & I3 & I2 & I1 & I0);
    O6 <= bit_at(INIT, I5 & I4 & I3 & I2 & I1 & I0);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FD is
    generic (
        INIT : bit := '0'
    );
    port (
        Q : out std_logic;
        C : in  std_logic;
        D : in  std_logic
    );
end entity FD;

architecture model of FD is
    signal state : std_logic := to_stdulogic(INIT);
begin
    process (C)
    begin
        if rising_edge(C) then
            state <= D;
        end if;
    end process;

    Q <= state;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FDE is
    generic (
        INIT : bit := '0'
    );
    port (
        Q : out std_logic;
        C : in  std_logic;
        CE : in  std_logic;
        D : in  std_logic
    );
end entity FDE;

architecture model of FDE is
    signal state : std_logic := to_stdulogic(INIT);
begin
    process (C)
    begin
        if rising_edge(C) then
            if CE = '1' then
                state <= D;
            end if;
        end if;
    end process;

    Q <= state;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FDR is
    generic (
        INIT : bit := '0'
    );
    port (
        Q : out std_logic;
        C : in  std_logic;
        D : in  std_logic;
        R : in  std_logic
    );
end entity FDR;

architecture model of FDR is
    signal state : std_logic := to_stdulogic(INIT);
begin
    process (C)
    begin
        if rising_edge(C) then
            if R = '1' then
                state <= '0';
            else
                state <= D;
            end if;
        end if;
    end process;

    Q <= state;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FDRE is
    generic (
        INIT : bit := '0'
    );
    port (
        Q : out std_logic;
        C : in  std_logic;
        CE : in  std_logic;
        D : in  std_logic;
        R : in  std_logic
    );
end entity FDRE;

architecture model of FDRE is
    signal state : std_logic := to_stdulogic(INIT);
begin
    process (C)
    begin
        if rising_edge(C) then
            if R = '1' then
                state <= '0';
            elsif CE = '1' then
                state <= D;
            end if;
        end if;
    end process;

    Q <= state;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FDS is
    generic (
        INIT : bit := '1'
    );
    port (
        Q : out std_logic;
        C : in  std_logic;
        D : in  std_logic;
        S : in  std_logic
    );
end entity FDS;

architecture model of FDS is
    signal state : std_logic := to_stdulogic(INIT);
begin
    process (C)
    begin
        if rising_edge(C) then
            if S = '1' then
                state <= '1';
            else
                state <= D;
            end if;
        end if;
    end process;

    Q <= state;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FDSE is
    generic (
        INIT : bit := '1'
    );
    port (
        Q : out std_logic;
        C : in  std_logic;
        CE : in  std_logic;
        D : in  std_logic;
        S : in  std_logic
    );
end entity FDSE;

architecture model of FDSE is
    signal state : std_logic := to_stdulogic(INIT);
begin
    process (C)
    begin
        if rising_edge(C) then
            if S = '1' then
                state <= '1';
            elsif CE = '1' then
                state <= D;
            end if;
        end if;
    end process;

    Q <= state;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FDRS is
    generic (
        INIT : bit := '0'
    );
    port (
        Q : out std_logic;
        C : in  std_logic;
        D : in  std_logic;
        R : in  std_logic;
        S : in  std_logic
    );
end entity FDRS;

architecture model of FDRS is
    signal state : std_logic := to_stdulogic(INIT);
begin
    process (C)
    begin
        if rising_edge(C) then
            if R = '1' then
                state <= '0';
            elsif S = '1' then
                state <= '1';
            else
                state <= D;
            end if;
        end if;
    end process;

    Q <= state;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FDRSE is
    generic (
        INIT : bit := '0'
    );
    port (
        Q : out std_logic;
        C : in  std_logic;
        CE : in  std_logic;
        D : in  std_logic;
        R : in  std_logic;
        S : in  std_logic
    );
end entity FDRSE;

architecture model of FDRSE is
    signal state : std_logic := to_stdulogic(INIT);
begin
    process (C)
    begin
        if rising_edge(C) then
            if R = '1' then
                state <= '0';
            elsif S = '1' then
                state <= '1';
            elsif CE = '1' then
                state <= D;
            end if;
        end if;
    end process;

    Q <= state;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FDC is
    generic (
        INIT : bit := '0'
    );
    port (
        Q : out std_logic;
        C : in  std_logic;
        D : in  std_logic;
        CLR : in  std_logic
    );
end entity FDC;

architecture model of FDC is
    signal state : std_logic := to_stdulogic(INIT);
begin
    process (C, CLR)
    begin
        if CLR = '1' then
            state <= '0';
        elsif rising_edge(C) then
            state <= D;
        end if;
    end process;

    Q <= state;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FDCE is
    generic (
        INIT : bit := '0'
    );
    port (
        Q : out std_logic;
        C : in  std_logic;
        CE : in  std_logic;
        D : in  std_logic;
        CLR : in  std_logic
    );
end entity FDCE;

architecture model of FDCE is
    signal state : std_logic := to_stdulogic(INIT);
begin
    process (C, CLR)
    begin
        if CLR = '1' then
            state <= '0';
        elsif rising_edge(C) then
            if CE = '1' then
                state <= D;
            end if;
        end if;
    end process;

    Q <= state;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FDP is
    generic (
        INIT : bit := '1'
    );
    port (
        Q : out std_logic;
        C : in  std_logic;
        D : in  std_logic;
        PRE : in  std_logic
    );
end entity FDP;

architecture model of FDP is
    signal state : std_logic := to_stdulogic(INIT);
begin
    process (C, PRE)
    begin
        if PRE = '1' then
            state <= '1';
        elsif rising_edge(C) then
            state <= D;
        end if;
    end process;

    Q <= state;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FDPE is
    generic (
        INIT : bit := '1'
    );
    port (
        Q : out std_logic;
        C : in  std_logic;
        CE : in  std_logic;
        D : in  std_logic;
        PRE : in  std_logic
    );
end entity FDPE;

architecture model of FDPE is
    signal state : std_logic := to_stdulogic(INIT);
begin
    process (C, PRE)
    begin
        if PRE = '1' then
            state <= '1';
        elsif rising_edge(C) then
            if CE = '1' then
                state <= D;
            end if;
        end if;
    end process;

    Q <= state;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity MUXCY is
    port (
        O : out std_logic;
        CI : in  std_logic;
        DI : in  std_logic;
        S : in  std_logic
    );
end entity MUXCY;

architecture model of MUXCY is
begin
    O <= CI when S = '1' else DI;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity XORCY is
    port (
        O : out std_logic;
        CI : in  std_logic;
        LI : in  std_logic
    );
end entity XORCY;

architecture model of XORCY is
begin
    O <= CI xor LI;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity MUXF5 is
    port (
        O : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        S : in  std_logic
    );
end entity MUXF5;

architecture model of MUXF5 is
begin
    O <= I1 when S = '1' else I0;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity MUXF6 is
    port (
        O : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        S : in  std_logic
    );
end entity MUXF6;

architecture model of MUXF6 is
begin
    O <= I1 when S = '1' else I0;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity MUXF7 is
    port (
        O : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        S : in  std_logic
    );
end entity MUXF7;

architecture model of MUXF7 is
begin
    O <= I1 when S = '1' else I0;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity MUXF8 is
    port (
        O : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        S : in  std_logic
    );
end entity MUXF8;

architecture model of MUXF8 is
begin
    O <= I1 when S = '1' else I0;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity INV is
    port (
        O : out std_logic;
        I : in  std_logic
    );
end entity INV;

architecture model of INV is
begin
    O <= not I;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity RAM16X1S is
    generic (
        INIT : bit_vector(15 downto 0) := (others => '0')
    );
    port (
        O : out std_logic;
        A0 : in  std_logic;
        A1 : in  std_logic;
        A2 : in  std_logic;
        A3 : in  std_logic;
        D : in  std_logic;
        WCLK : in  std_logic;
        WE : in  std_logic
    );
end entity RAM16X1S;

architecture model of RAM16X1S is
    signal memory : std_logic_vector(15 downto 0) := to_stdlogicvector(INIT);
    signal place  : std_logic_vector(3 downto 0);
begin
    place <= A3 & A2 & A1 & A0;

    process (WCLK)
    begin
        if rising_edge(WCLK) and WE = '1' then
            memory(number_of(place)) <= D;
        end if;
    end process;

    O <= memory(number_of(place));
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity RAM32X1S is
    generic (
        INIT : bit_vector(31 downto 0) := (others => '0')
    );
    port (
        O : out std_logic;
        A0 : in  std_logic;
        A1 : in  std_logic;
        A2 : in  std_logic;
        A3 : in  std_logic;
        A4 : in  std_logic;
        D : in  std_logic;
        WCLK : in  std_logic;
        WE : in  std_logic
    );
end entity RAM32X1S;

architecture model of RAM32X1S is
    signal memory : std_logic_vector(31 downto 0) := to_stdlogicvector(INIT);
    signal place  : std_logic_vector(4 downto 0);
begin
    place <= A4 & A3 & A2 & A1 & A0;

    process (WCLK)
    begin
        if rising_edge(WCLK) and WE = '1' then
            memory(number_of(place)) <= D;
        end if;
    end process;

    O <= memory(number_of(place));
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity RAM64X1S is
    generic (
        INIT : bit_vector(63 downto 0) := (others => '0')
    );
    port (
        O : out std_logic;
        A0 : in  std_logic;
        A1 : in  std_logic;
        A2 : in  std_logic;
        A3 : in  std_logic;
        A4 : in  std_logic;
        A5 : in  std_logic;
        D : in  std_logic;
        WCLK : in  std_logic;
        WE : in  std_logic
    );
end entity RAM64X1S;

architecture model of RAM64X1S is
    signal memory : std_logic_vector(63 downto 0) := to_stdlogicvector(INIT);
    signal place  : std_logic_vector(5 downto 0);
begin
    place <= A5 & A4 & A3 & A2 & A1 & A0;

    process (WCLK)
    begin
        if rising_edge(WCLK) and WE = '1' then
            memory(number_of(place)) <= D;
        end if;
    end process;

    O <= memory(number_of(place));
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity RAM128X1S is
    generic (
        INIT : bit_vector(127 downto 0) := (others => '0')
    );
    port (
        O : out std_logic;
        A0 : in  std_logic;
        A1 : in  std_logic;
        A2 : in  std_logic;
        A3 : in  std_logic;
        A4 : in  std_logic;
        A5 : in  std_logic;
        A6 : in  std_logic;
        D : in  std_logic;
        WCLK : in  std_logic;
        WE : in  std_logic
    );
end entity RAM128X1S;

architecture model of RAM128X1S is
    signal memory : std_logic_vector(127 downto 0) := to_stdlogicvector(INIT);
    signal place  : std_logic_vector(6 downto 0);
begin
    place <= A6 & A5 & A4 & A3 & A2 & A1 & A0;

    process (WCLK)
    begin
        if rising_edge(WCLK) and WE = '1' then
            memory(number_of(place)) <= D;
        end if;
    end process;

    O <= memory(number_of(place));
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity RAM256X1S is
    generic (
        INIT : bit_vector(255 downto 0) := (others => '0')
    );
    port (
        O : out std_logic;
        A : in  std_logic_vector(7 downto 0);
        D : in  std_logic;
        WCLK : in  std_logic;
        WE : in  std_logic
    );
end entity RAM256X1S;

architecture model of RAM256X1S is
    signal memory : std_logic_vector(255 downto 0) := to_stdlogicvector(INIT);
    signal place  : std_logic_vector(7 downto 0);
begin
    place <= A;

    process (WCLK)
    begin
        if rising_edge(WCLK) and WE = '1' then
            memory(number_of(place)) <= D;
        end if;
    end process;

    O <= memory(number_of(place));
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity RAM16X1D is
    generic (
        INIT : bit_vector(15 downto 0) := (others => '0')
    );
    port (
        DPO : out std_logic;
        SPO : out std_logic;
        A0 : in  std_logic;
        A1 : in  std_logic;
        A2 : in  std_logic;
        A3 : in  std_logic;
        D : in  std_logic;
        DPRA0 : in  std_logic;
        DPRA1 : in  std_logic;
        DPRA2 : in  std_logic;
        DPRA3 : in  std_logic;
        WCLK : in  std_logic;
        WE : in  std_logic
    );
end entity RAM16X1D;

architecture model of RAM16X1D is
    signal memory : std_logic_vector(15 downto 0) := to_stdlogicvector(INIT);
    signal place  : std_logic_vector(3 downto 0);
    signal other  : std_logic_vector(3 downto 0);
begin
    place <= A3 & A2 & A1 & A0;
    other <= DPRA3 & DPRA2 & DPRA1 & DPRA0;

    process (WCLK)
    begin
        if rising_edge(WCLK) and WE = '1' then
            memory(number_of(place)) <= D;
        end if;
    end process;

    SPO <= memory(number_of(place));
    DPO <= memory(number_of(other));
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity RAM32X1D is
    generic (
        INIT : bit_vector(31 downto 0) := (others => '0')
    );
    port (
        DPO : out std_logic;
        SPO : out std_logic;
        A0 : in  std_logic;
        A1 : in  std_logic;
        A2 : in  std_logic;
        A3 : in  std_logic;
        A4 : in  std_logic;
        D : in  std_logic;
        DPRA0 : in  std_logic;
        DPRA1 : in  std_logic;
        DPRA2 : in  std_logic;
        DPRA3 : in  std_logic;
        DPRA4 : in  std_logic;
        WCLK : in  std_logic;
        WE : in  std_logic
    );
end entity RAM32X1D;

architecture model of RAM32X1D is
    signal memory : std_logic_vector(31 downto 0) := to_stdlogicvector(INIT);
    signal place  : std_logic_vector(4 downto 0);
    signal other  : std_logic_vector(4 downto 0);
begin
    place <= A4 & A3 & A2 & A1 & A0;
    other <= DPRA4 & DPRA3 & DPRA2 & DPRA1 & DPRA0;

    process (WCLK)
    begin
        if rising_edge(WCLK) and WE = '1' then
            memory(number_of(place)) <= D;
        end if;
    end process;

    SPO <= memory(number_of(place));
    DPO <= memory(number_of(other));
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity RAM64X1D is
    generic (
        INIT : bit_vector(63 downto 0) := (others => '0')
    );
    port (
        DPO : out std_logic;
        SPO : out std_logic;
        A0 : in  std_logic;
        A1 : in  std_logic;
        A2 : in  std_logic;
        A3 : in  std_logic;
        A4 : in  std_logic;
        A5 : in  std_logic;
        D : in  std_logic;
        DPRA0 : in  std_logic;
        DPRA1 : in  std_logic;
        DPRA2 : in  std_logic;
        DPRA3 : in  std_logic;
        DPRA4 : in  std_logic;
        DPRA5 : in  std_logic;
        WCLK : in  std_logic;
        WE : in  std_logic
    );
end entity RAM64X1D;

architecture model of RAM64X1D is
    signal memory : std_logic_vector(63 downto 0) := to_stdlogicvector(INIT);
    signal place  : std_logic_vector(5 downto 0);
    signal other  : std_logic_vector(5 downto 0);
begin
    place <= A5 & A4 & A3 & A2 & A1 & A0;
    other <= DPRA5 & DPRA4 & DPRA3 & DPRA2 & DPRA1 & DPRA0;

    process (WCLK)
    begin
        if rising_edge(WCLK) and WE = '1' then
            memory(number_of(place)) <= D;
        end if;
    end process;

    SPO <= memory(number_of(place));
    DPO <= memory(number_of(other));
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity RAM128X1D is
    generic (
        INIT : bit_vector(127 downto 0) := (others => '0')
    );
    port (
        DPO : out std_logic;
        SPO : out std_logic;
        A : in  std_logic_vector(6 downto 0);
        D : in  std_logic;
        DPRA : in  std_logic_vector(6 downto 0);
        WCLK : in  std_logic;
        WE : in  std_logic
    );
end entity RAM128X1D;

architecture model of RAM128X1D is
    signal memory : std_logic_vector(127 downto 0) := to_stdlogicvector(INIT);
    signal place  : std_logic_vector(6 downto 0);
    signal other  : std_logic_vector(6 downto 0);
begin
    place <= A;
    other <= DPRA;

    process (WCLK)
    begin
        if rising_edge(WCLK) and WE = '1' then
            memory(number_of(place)) <= D;
        end if;
    end process;

    SPO <= memory(number_of(place));
    DPO <= memory(number_of(other));
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity RAM32M is
    generic (
        INIT_A : bit_vector(63 downto 0) := (others => '0');
        INIT_B : bit_vector(63 downto 0) := (others => '0');
        INIT_C : bit_vector(63 downto 0) := (others => '0');
        INIT_D : bit_vector(63 downto 0) := (others => '0')
    );
    port (
        DOA : out std_logic_vector(1 downto 0);
        DOB : out std_logic_vector(1 downto 0);
        DOC : out std_logic_vector(1 downto 0);
        DOD : out std_logic_vector(1 downto 0);
        ADDRA : in  std_logic_vector(4 downto 0);
        ADDRB : in  std_logic_vector(4 downto 0);
        ADDRC : in  std_logic_vector(4 downto 0);
        ADDRD : in  std_logic_vector(4 downto 0);
        DIA : in  std_logic_vector(1 downto 0);
        DIB : in  std_logic_vector(1 downto 0);
        DIC : in  std_logic_vector(1 downto 0);
        DID : in  std_logic_vector(1 downto 0);
        WCLK : in  std_logic;
        WE : in  std_logic
    );
end entity RAM32M;

architecture model of RAM32M is
    signal memory_a : std_logic_vector(63 downto 0) := to_stdlogicvector(INIT_A);
    signal memory_b : std_logic_vector(63 downto 0) := to_stdlogicvector(INIT_B);
    signal memory_c : std_logic_vector(63 downto 0) := to_stdlogicvector(INIT_C);
    signal memory_d : std_logic_vector(63 downto 0) := to_stdlogicvector(INIT_D);
begin
    -- All are written at the address of D.
    process (WCLK)
    begin
        if rising_edge(WCLK) and WE = '1' then
            memory_a(2 * number_of(ADDRD) + 1 downto 2 * number_of(ADDRD)) <= DIA;
            memory_b(2 * number_of(ADDRD) + 1 downto 2 * number_of(ADDRD)) <= DIB;
            memory_c(2 * number_of(ADDRD) + 1 downto 2 * number_of(ADDRD)) <= DIC;
            memory_d(2 * number_of(ADDRD) + 1 downto 2 * number_of(ADDRD)) <= DID;
        end if;
    end process;

    DOA <= memory_a(2 * number_of(ADDRA) + 1 downto 2 * number_of(ADDRA));
    DOB <= memory_b(2 * number_of(ADDRB) + 1 downto 2 * number_of(ADDRB));
    DOC <= memory_c(2 * number_of(ADDRC) + 1 downto 2 * number_of(ADDRC));
    DOD <= memory_d(2 * number_of(ADDRD) + 1 downto 2 * number_of(ADDRD));
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity RAM64M is
    generic (
        INIT_A : bit_vector(63 downto 0) := (others => '0');
        INIT_B : bit_vector(63 downto 0) := (others => '0');
        INIT_C : bit_vector(63 downto 0) := (others => '0');
        INIT_D : bit_vector(63 downto 0) := (others => '0')
    );
    port (
        DOA : out std_logic;
        DOB : out std_logic;
        DOC : out std_logic;
        DOD : out std_logic;
        ADDRA : in  std_logic_vector(5 downto 0);
        ADDRB : in  std_logic_vector(5 downto 0);
        ADDRC : in  std_logic_vector(5 downto 0);
        ADDRD : in  std_logic_vector(5 downto 0);
        DIA : in  std_logic;
        DIB : in  std_logic;
        DIC : in  std_logic;
        DID : in  std_logic;
        WCLK : in  std_logic;
        WE : in  std_logic
    );
end entity RAM64M;

architecture model of RAM64M is
    signal memory_a : std_logic_vector(63 downto 0) := to_stdlogicvector(INIT_A);
    signal memory_b : std_logic_vector(63 downto 0) := to_stdlogicvector(INIT_B);
    signal memory_c : std_logic_vector(63 downto 0) := to_stdlogicvector(INIT_C);
    signal memory_d : std_logic_vector(63 downto 0) := to_stdlogicvector(INIT_D);
begin
    -- All are written at the address of D.
    process (WCLK)
    begin
        if rising_edge(WCLK) and WE = '1' then
            memory_a(number_of(ADDRD)) <= DIA;
            memory_b(number_of(ADDRD)) <= DIB;
            memory_c(number_of(ADDRD)) <= DIC;
            memory_d(number_of(ADDRD)) <= DID;
        end if;
    end process;

    DOA <= memory_a(number_of(ADDRA));
    DOB <= memory_b(number_of(ADDRB));
    DOC <= memory_c(number_of(ADDRC));
    DOD <= memory_d(number_of(ADDRD));
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity LUT1_L is
    generic (
        INIT : bit_vector := "00"
    );
    port (
        LO : out std_logic;
        I0 : in  std_logic
    );
end entity LUT1_L;

architecture model of LUT1_L is
begin
    LO <= bit_at(INIT, (0 => I0));
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity LUT1_D is
    generic (
        INIT : bit_vector := "00"
    );
    port (
        O : out std_logic;
        LO : out std_logic;
        I0 : in  std_logic
    );
end entity LUT1_D;

architecture model of LUT1_D is
begin
    O <= bit_at(INIT, (0 => I0));
    LO <= bit_at(INIT, (0 => I0));
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity LUT2_L is
    generic (
        INIT : bit_vector := X"0"
    );
    port (
        LO : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic
    );
end entity LUT2_L;

architecture model of LUT2_L is
begin
    LO <= bit_at(INIT, I1 & I0);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity LUT2_D is
    generic (
        INIT : bit_vector := X"0"
    );
    port (
        O : out std_logic;
        LO : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic
    );
end entity LUT2_D;

architecture model of LUT2_D is
begin
    O <= bit_at(INIT, I1 & I0);
    LO <= bit_at(INIT, I1 & I0);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity LUT3_L is
    generic (
        INIT : bit_vector := X"00"
    );
    port (
        LO : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        I2 : in  std_logic
    );
end entity LUT3_L;

architecture model of LUT3_L is
begin
    LO <= bit_at(INIT, I2 & I1 & I0);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity LUT3_D is
    generic (
        INIT : bit_vector := X"00"
    );
    port (
        O : out std_logic;
        LO : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        I2 : in  std_logic
    );
end entity LUT3_D;

architecture model of LUT3_D is
begin
    O <= bit_at(INIT, I2 & I1 & I0);
    LO <= bit_at(INIT, I2 & I1 & I0);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity LUT4_L is
    generic (
        INIT : bit_vector := X"0000"
    );
    port (
        LO : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        I2 : in  std_logic;
        I3 : in  std_logic
    );
end entity LUT4_L;

architecture model of LUT4_L is
begin
    LO <= bit_at(INIT, I3 & I2 & I1 & I0);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity LUT4_D is
    generic (
        INIT : bit_vector := X"0000"
    );
    port (
        O : out std_logic;
        LO : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        I2 : in  std_logic;
        I3 : in  std_logic
    );
end entity LUT4_D;

architecture model of LUT4_D is
begin
    O <= bit_at(INIT, I3 & I2 & I1 & I0);
    LO <= bit_at(INIT, I3 & I2 & I1 & I0);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity LUT5_L is
    generic (
        INIT : bit_vector := X"00000000"
    );
    port (
        LO : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        I2 : in  std_logic;
        I3 : in  std_logic;
        I4 : in  std_logic
    );
end entity LUT5_L;

architecture model of LUT5_L is
begin
    LO <= bit_at(INIT, I4 & I3 & I2 & I1 & I0);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity LUT5_D is
    generic (
        INIT : bit_vector := X"00000000"
    );
    port (
        O : out std_logic;
        LO : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        I2 : in  std_logic;
        I3 : in  std_logic;
        I4 : in  std_logic
    );
end entity LUT5_D;

architecture model of LUT5_D is
begin
    O <= bit_at(INIT, I4 & I3 & I2 & I1 & I0);
    LO <= bit_at(INIT, I4 & I3 & I2 & I1 & I0);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity LUT6_L is
    generic (
        INIT : bit_vector := X"0000000000000000"
    );
    port (
        LO : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        I2 : in  std_logic;
        I3 : in  std_logic;
        I4 : in  std_logic;
        I5 : in  std_logic
    );
end entity LUT6_L;

architecture model of LUT6_L is
begin
    LO <= bit_at(INIT, I5 & I4 & I3 & I2 & I1 & I0);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity LUT6_D is
    generic (
        INIT : bit_vector := X"0000000000000000"
    );
    port (
        O : out std_logic;
        LO : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        I2 : in  std_logic;
        I3 : in  std_logic;
        I4 : in  std_logic;
        I5 : in  std_logic
    );
end entity LUT6_D;

architecture model of LUT6_D is
begin
    O <= bit_at(INIT, I5 & I4 & I3 & I2 & I1 & I0);
    LO <= bit_at(INIT, I5 & I4 & I3 & I2 & I1 & I0);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity MUXCY_L is
    port (
        LO : out std_logic;
        CI : in  std_logic;
        DI : in  std_logic;
        S : in  std_logic
    );
end entity MUXCY_L;

architecture model of MUXCY_L is
begin
    LO <= CI when S = '1' else DI;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity MUXCY_D is
    port (
        O : out std_logic;
        LO : out std_logic;
        CI : in  std_logic;
        DI : in  std_logic;
        S : in  std_logic
    );
end entity MUXCY_D;

architecture model of MUXCY_D is
begin
    O <= CI when S = '1' else DI;
    LO <= CI when S = '1' else DI;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity XORCY_L is
    port (
        LO : out std_logic;
        CI : in  std_logic;
        LI : in  std_logic
    );
end entity XORCY_L;

architecture model of XORCY_L is
begin
    LO <= CI xor LI;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity XORCY_D is
    port (
        O : out std_logic;
        LO : out std_logic;
        CI : in  std_logic;
        LI : in  std_logic
    );
end entity XORCY_D;

architecture model of XORCY_D is
begin
    O <= CI xor LI;
    LO <= CI xor LI;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity MUXF5_L is
    port (
        LO : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        S : in  std_logic
    );
end entity MUXF5_L;

architecture model of MUXF5_L is
begin
    LO <= I1 when S = '1' else I0;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity MUXF5_D is
    port (
        O : out std_logic;
        LO : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        S : in  std_logic
    );
end entity MUXF5_D;

architecture model of MUXF5_D is
begin
    O <= I1 when S = '1' else I0;
    LO <= I1 when S = '1' else I0;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity MUXF6_L is
    port (
        LO : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        S : in  std_logic
    );
end entity MUXF6_L;

architecture model of MUXF6_L is
begin
    LO <= I1 when S = '1' else I0;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity MUXF6_D is
    port (
        O : out std_logic;
        LO : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        S : in  std_logic
    );
end entity MUXF6_D;

architecture model of MUXF6_D is
begin
    O <= I1 when S = '1' else I0;
    LO <= I1 when S = '1' else I0;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity MUXF7_L is
    port (
        LO : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        S : in  std_logic
    );
end entity MUXF7_L;

architecture model of MUXF7_L is
begin
    LO <= I1 when S = '1' else I0;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity MUXF7_D is
    port (
        O : out std_logic;
        LO : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        S : in  std_logic
    );
end entity MUXF7_D;

architecture model of MUXF7_D is
begin
    O <= I1 when S = '1' else I0;
    LO <= I1 when S = '1' else I0;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity MUXF8_L is
    port (
        LO : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        S : in  std_logic
    );
end entity MUXF8_L;

architecture model of MUXF8_L is
begin
    LO <= I1 when S = '1' else I0;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity MUXF8_D is
    port (
        O : out std_logic;
        LO : out std_logic;
        I0 : in  std_logic;
        I1 : in  std_logic;
        S : in  std_logic
    );
end entity MUXF8_D;

architecture model of MUXF8_D is
begin
    O <= I1 when S = '1' else I0;
    LO <= I1 when S = '1' else I0;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity CARRY4 is
    port (
        CO : out std_logic_vector(3 downto 0);
        O : out std_logic_vector(3 downto 0);
        CI : in  std_logic;
        CYINIT : in  std_logic;
        DI : in  std_logic_vector(3 downto 0);
        S : in  std_logic_vector(3 downto 0)
    );
end entity CARRY4;

architecture model of CARRY4 is
    signal chain : std_logic_vector(4 downto 0);
begin
    -- One of the two inputs of the chain is used; the other one is 0.
    chain(0) <= CI or CYINIT;
    links : for i in 0 to 3 generate
        chain(i + 1) <= chain(i) when S(i) = '1' else DI(i);
    end generate;

    CO <= chain(4 downto 1);
    O <= S xor chain(3 downto 0);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity VCC is
    port (
        P : out std_logic
    );
end entity VCC;

architecture model of VCC is
begin
    P <= '1';
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity GND is
    port (
        G : out std_logic
    );
end entity GND;

architecture model of GND is
begin
    G <= '0';
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity BUF is
    port (
        O : out std_logic;
        I : in  std_logic
    );
end entity BUF;

architecture model of BUF is
begin
    O <= I;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity BUFG is
    port (
        O : out std_logic;
        I : in  std_logic
    );
end entity BUFG;

architecture model of BUFG is
begin
    O <= I;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity SRL16 is
    generic (
        INIT : bit_vector := X"0000"
    );
    port (
        Q : out std_logic;
        A0 : in  std_logic;
        A1 : in  std_logic;
        A2 : in  std_logic;
        A3 : in  std_logic;
        CLK : in  std_logic;
        D : in  std_logic
    );
end entity SRL16;

architecture model of SRL16 is
    signal kept : std_logic_vector(15 downto 0) := to_stdlogicvector(INIT);
begin
    process (CLK)
    begin
        if rising_edge(CLK) then
            kept <= kept(14 downto 0) & D;
        end if;
    end process;

    Q <= kept(number_of(A3 & A2 & A1 & A0));
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity SRL16E is
    generic (
        INIT : bit_vector := X"0000"
    );
    port (
        Q : out std_logic;
        A0 : in  std_logic;
        A1 : in  std_logic;
        A2 : in  std_logic;
        A3 : in  std_logic;
        CE : in  std_logic;
        CLK : in  std_logic;
        D : in  std_logic
    );
end entity SRL16E;

architecture model of SRL16E is
    signal kept : std_logic_vector(15 downto 0) := to_stdlogicvector(INIT);
begin
    process (CLK)
    begin
        if rising_edge(CLK) and CE = '1' then
            kept <= kept(14 downto 0) & D;
        end if;
    end process;

    Q <= kept(number_of(A3 & A2 & A1 & A0));
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity SRLC16E is
    generic (
        INIT : bit_vector := X"0000"
    );
    port (
        Q : out std_logic;
        Q15 : out std_logic;
        A0 : in  std_logic;
        A1 : in  std_logic;
        A2 : in  std_logic;
        A3 : in  std_logic;
        CE : in  std_logic;
        CLK : in  std_logic;
        D : in  std_logic
    );
end entity SRLC16E;

architecture model of SRLC16E is
    signal kept : std_logic_vector(15 downto 0) := to_stdlogicvector(INIT);
begin
    process (CLK)
    begin
        if rising_edge(CLK) and CE = '1' then
            kept <= kept(14 downto 0) & D;
        end if;
    end process;

    Q <= kept(number_of(A3 & A2 & A1 & A0));
    Q15 <= kept(15);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity SRLC32E is
    generic (
        INIT : bit_vector := X"00000000"
    );
    port (
        Q : out std_logic;
        Q31 : out std_logic;
        A : in  std_logic_vector(4 downto 0);
        CE : in  std_logic;
        CLK : in  std_logic;
        D : in  std_logic
    );
end entity SRLC32E;

architecture model of SRLC32E is
    signal kept : std_logic_vector(31 downto 0) := to_stdlogicvector(INIT);
begin
    process (CLK)
    begin
        if rising_edge(CLK) and CE = '1' then
            kept <= kept(30 downto 0) & D;
        end if;
    end process;

    Q <= kept(number_of(A));
    Q31 <= kept(31);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity RAMB16_S1 is
    generic (
        INIT : bit_vector := "0";
        SRVAL : bit_vector := "0";
        WRITE_MODE : string := "WRITE_FIRST";
        INIT_00 : bit_vector(255 downto 0) := (others => '0');
        INIT_01 : bit_vector(255 downto 0) := (others => '0');
        INIT_02 : bit_vector(255 downto 0) := (others => '0');
        INIT_03 : bit_vector(255 downto 0) := (others => '0');
        INIT_04 : bit_vector(255 downto 0) := (others => '0');
        INIT_05 : bit_vector(255 downto 0) := (others => '0');
        INIT_06 : bit_vector(255 downto 0) := (others => '0');
        INIT_07 : bit_vector(255 downto 0) := (others => '0');
        INIT_08 : bit_vector(255 downto 0) := (others => '0');
        INIT_09 : bit_vector(255 downto 0) := (others => '0');
        INIT_0A : bit_vector(255 downto 0) := (others => '0');
        INIT_0B : bit_vector(255 downto 0) := (others => '0');
        INIT_0C : bit_vector(255 downto 0) := (others => '0');
        INIT_0D : bit_vector(255 downto 0) := (others => '0');
        INIT_0E : bit_vector(255 downto 0) := (others => '0');
        INIT_0F : bit_vector(255 downto 0) := (others => '0');
        INIT_10 : bit_vector(255 downto 0) := (others => '0');
        INIT_11 : bit_vector(255 downto 0) := (others => '0');
        INIT_12 : bit_vector(255 downto 0) := (others => '0');
        INIT_13 : bit_vector(255 downto 0) := (others => '0');
        INIT_14 : bit_vector(255 downto 0) := (others => '0');
        INIT_15 : bit_vector(255 downto 0) := (others => '0');
        INIT_16 : bit_vector(255 downto 0) := (others => '0');
        INIT_17 : bit_vector(255 downto 0) := (others => '0');
        INIT_18 : bit_vector(255 downto 0) := (others => '0');
        INIT_19 : bit_vector(255 downto 0) := (others => '0');
        INIT_1A : bit_vector(255 downto 0) := (others => '0');
        INIT_1B : bit_vector(255 downto 0) := (others => '0');
        INIT_1C : bit_vector(255 downto 0) := (others => '0');
        INIT_1D : bit_vector(255 downto 0) := (others => '0');
        INIT_1E : bit_vector(255 downto 0) := (others => '0');
        INIT_1F : bit_vector(255 downto 0) := (others => '0');
        INIT_20 : bit_vector(255 downto 0) := (others => '0');
        INIT_21 : bit_vector(255 downto 0) := (others => '0');
        INIT_22 : bit_vector(255 downto 0) := (others => '0');
        INIT_23 : bit_vector(255 downto 0) := (others => '0');
        INIT_24 : bit_vector(255 downto 0) := (others => '0');
        INIT_25 : bit_vector(255 downto 0) := (others => '0');
        INIT_26 : bit_vector(255 downto 0) := (others => '0');
        INIT_27 : bit_vector(255 downto 0) := (others => '0');
        INIT_28 : bit_vector(255 downto 0) := (others => '0');
        INIT_29 : bit_vector(255 downto 0) := (others => '0');
        INIT_2A : bit_vector(255 downto 0) := (others => '0');
        INIT_2B : bit_vector(255 downto 0) := (others => '0');
        INIT_2C : bit_vector(255 downto 0) := (others => '0');
        INIT_2D : bit_vector(255 downto 0) := (others => '0');
        INIT_2E : bit_vector(255 downto 0) := (others => '0');
        INIT_2F : bit_vector(255 downto 0) := (others => '0');
        INIT_30 : bit_vector(255 downto 0) := (others => '0');
        INIT_31 : bit_vector(255 downto 0) := (others => '0');
        INIT_32 : bit_vector(255 downto 0) := (others => '0');
        INIT_33 : bit_vector(255 downto 0) := (others => '0');
        INIT_34 : bit_vector(255 downto 0) := (others => '0');
        INIT_35 : bit_vector(255 downto 0) := (others => '0');
        INIT_36 : bit_vector(255 downto 0) := (others => '0');
        INIT_37 : bit_vector(255 downto 0) := (others => '0');
        INIT_38 : bit_vector(255 downto 0) := (others => '0');
        INIT_39 : bit_vector(255 downto 0) := (others => '0');
        INIT_3A : bit_vector(255 downto 0) := (others => '0');
        INIT_3B : bit_vector(255 downto 0) := (others => '0');
        INIT_3C : bit_vector(255 downto 0) := (others => '0');
        INIT_3D : bit_vector(255 downto 0) := (others => '0');
        INIT_3E : bit_vector(255 downto 0) := (others => '0');
        INIT_3F : bit_vector(255 downto 0) := (others => '0')
    );
    port (
        DO : out std_logic_vector(0 downto 0);
        ADDR : in  std_logic_vector(13 downto 0);
        CLK : in  std_logic;
        DI : in  std_logic_vector(0 downto 0);
        EN : in  std_logic;
        SSR : in  std_logic;
        WE : in  std_logic
    );
end entity RAMB16_S1;

architecture model of RAMB16_S1 is
    constant first : bit_vector(16383 downto 0) :=
        INIT_3F & INIT_3E & INIT_3D & INIT_3C & INIT_3B & INIT_3A & INIT_39 & INIT_38
        & INIT_37 & INIT_36 & INIT_35 & INIT_34 & INIT_33 & INIT_32 & INIT_31 & INIT_30
        & INIT_2F & INIT_2E & INIT_2D & INIT_2C & INIT_2B & INIT_2A & INIT_29 & INIT_28
        & INIT_27 & INIT_26 & INIT_25 & INIT_24 & INIT_23 & INIT_22 & INIT_21 & INIT_20
        & INIT_1F & INIT_1E & INIT_1D & INIT_1C & INIT_1B & INIT_1A & INIT_19 & INIT_18
        & INIT_17 & INIT_16 & INIT_15 & INIT_14 & INIT_13 & INIT_12 & INIT_11 & INIT_10
        & INIT_0F & INIT_0E & INIT_0D & INIT_0C & INIT_0B & INIT_0A & INIT_09 & INIT_08
        & INIT_07 & INIT_06 & INIT_05 & INIT_04 & INIT_03 & INIT_02 & INIT_01 & INIT_00;
    signal data : std_logic_vector(16383 downto 0) := to_stdlogicvector(first);
    signal value : std_logic_vector(0 downto 0) := low_bits(INIT, 1);
begin
    process (CLK)
        variable at : natural;
    begin
        if rising_edge(CLK) and EN = '1' then
            at := number_of(ADDR);
            if SSR = '1' then
                value <= low_bits(SRVAL, 1);
            elsif WE /= '1' or WRITE_MODE = "READ_FIRST" then
                value <= data(at * 1 + 0 downto at * 1);
            elsif WRITE_MODE = "WRITE_FIRST" then
                value <= DI;
            end if;
            if WE = '1' then
                data(at * 1 + 0 downto at * 1) <= DI;
            end if;
        end if;
    end process;

    DO <= value(0 downto 0);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity RAMB16_S2 is
    generic (
        INIT : bit_vector := "00";
        SRVAL : bit_vector := "00";
        WRITE_MODE : string := "WRITE_FIRST";
        INIT_00 : bit_vector(255 downto 0) := (others => '0');
        INIT_01 : bit_vector(255 downto 0) := (others => '0');
        INIT_02 : bit_vector(255 downto 0) := (others => '0');
        INIT_03 : bit_vector(255 downto 0) := (others => '0');
        INIT_04 : bit_vector(255 downto 0) := (others => '0');
        INIT_05 : bit_vector(255 downto 0) := (others => '0');
        INIT_06 : bit_vector(255 downto 0) := (others => '0');
        INIT_07 : bit_vector(255 downto 0) := (others => '0');
        INIT_08 : bit_vector(255 downto 0) := (others => '0');
        INIT_09 : bit_vector(255 downto 0) := (others => '0');
        INIT_0A : bit_vector(255 downto 0) := (others => '0');
        INIT_0B : bit_vector(255 downto 0) := (others => '0');
        INIT_0C : bit_vector(255 downto 0) := (others => '0');
        INIT_0D : bit_vector(255 downto 0) := (others => '0');
        INIT_0E : bit_vector(255 downto 0) := (others => '0');
        INIT_0F : bit_vector(255 downto 0) := (others => '0');
        INIT_10 : bit_vector(255 downto 0) := (others => '0');
        INIT_11 : bit_vector(255 downto 0) := (others => '0');
        INIT_12 : bit_vector(255 downto 0) := (others => '0');
        INIT_13 : bit_vector(255 downto 0) := (others => '0');
        INIT_14 : bit_vector(255 downto 0) := (others => '0');
        INIT_15 : bit_vector(255 downto 0) := (others => '0');
        INIT_16 : bit_vector(255 downto 0) := (others => '0');
        INIT_17 : bit_vector(255 downto 0) := (others => '0');
        INIT_18 : bit_vector(255 downto 0) := (others => '0');
        INIT_19 : bit_vector(255 downto 0) := (others => '0');
        INIT_1A : bit_vector(255 downto 0) := (others => '0');
        INIT_1B : bit_vector(255 downto 0) := (others => '0');
        INIT_1C : bit_vector(255 downto 0) := (others => '0');
        INIT_1D : bit_vector(255 downto 0) := (others => '0');
        INIT_1E : bit_vector(255 downto 0) := (others => '0');
        INIT_1F : bit_vector(255 downto 0) := (others => '0');
        INIT_20 : bit_vector(255 downto 0) := (others => '0');
        INIT_21 : bit_vector(255 downto 0) := (others => '0');
        INIT_22 : bit_vector(255 downto 0) := (others => '0');
        INIT_23 : bit_vector(255 downto 0) := (others => '0');
        INIT_24 : bit_vector(255 downto 0) := (others => '0');
        INIT_25 : bit_vector(255 downto 0) := (others => '0');
        INIT_26 : bit_vector(255 downto 0) := (others => '0');
        INIT_27 : bit_vector(255 downto 0) := (others => '0');
        INIT_28 : bit_vector(255 downto 0) := (others => '0');
        INIT_29 : bit_vector(255 downto 0) := (others => '0');
        INIT_2A : bit_vector(255 downto 0) := (others => '0');
        INIT_2B : bit_vector(255 downto 0) := (others => '0');
        INIT_2C : bit_vector(255 downto 0) := (others => '0');
        INIT_2D : bit_vector(255 downto 0) := (others => '0');
        INIT_2E : bit_vector(255 downto 0) := (others => '0');
        INIT_2F : bit_vector(255 downto 0) := (others => '0');
        INIT_30 : bit_vector(255 downto 0) := (others => '0');
        INIT_31 : bit_vector(255 downto 0) := (others => '0');
        INIT_32 : bit_vector(255 downto 0) := (others => '0');
        INIT_33 : bit_vector(255 downto 0) := (others => '0');
        INIT_34 : bit_vector(255 downto 0) := (others => '0');
        INIT_35 : bit_vector(255 downto 0) := (others => '0');
        INIT_36 : bit_vector(255 downto 0) := (others => '0');
        INIT_37 : bit_vector(255 downto 0) := (others => '0');
        INIT_38 : bit_vector(255 downto 0) := (others => '0');
        INIT_39 : bit_vector(255 downto 0) := (others => '0');
        INIT_3A : bit_vector(255 downto 0) := (others => '0');
        INIT_3B : bit_vector(255 downto 0) := (others => '0');
        INIT_3C : bit_vector(255 downto 0) := (others => '0');
        INIT_3D : bit_vector(255 downto 0) := (others => '0');
        INIT_3E : bit_vector(255 downto 0) := (others => '0');
        INIT_3F : bit_vector(255 downto 0) := (others => '0')
    );
    port (
        DO : out std_logic_vector(1 downto 0);
        ADDR : in  std_logic_vector(12 downto 0);
        CLK : in  std_logic;
        DI : in  std_logic_vector(1 downto 0);
        EN : in  std_logic;
        SSR : in  std_logic;
        WE : in  std_logic
    );
end entity RAMB16_S2;

architecture model of RAMB16_S2 is
    constant first : bit_vector(16383 downto 0) :=
        INIT_3F & INIT_3E & INIT_3D & INIT_3C & INIT_3B & INIT_3A & INIT_39 & INIT_38
        & INIT_37 & INIT_36 & INIT_35 & INIT_34 & INIT_33 & INIT_32 & INIT_31 & INIT_30
        & INIT_2F & INIT_2E & INIT_2D & INIT_2C & INIT_2B & INIT_2A & INIT_29 & INIT_28
        & INIT_27 & INIT_26 & INIT_25 & INIT_24 & INIT_23 & INIT_22 & INIT_21 & INIT_20
        & INIT_1F & INIT_1E & INIT_1D & INIT_1C & INIT_1B & INIT_1A & INIT_19 & INIT_18
        & INIT_17 & INIT_16 & INIT_15 & INIT_14 & INIT_13 & INIT_12 & INIT_11 & INIT_10
        & INIT_0F & INIT_0E & INIT_0D & INIT_0C & INIT_0B & INIT_0A & INIT_09 & INIT_08
        & INIT_07 & INIT_06 & INIT_05 & INIT_04 & INIT_03 & INIT_02 & INIT_01 & INIT_00;
    signal data : std_logic_vector(16383 downto 0) := to_stdlogicvector(first);
    signal value : std_logic_vector(1 downto 0) := low_bits(INIT, 2);
begin
    process (CLK)
        variable at : natural;
    begin
        if rising_edge(CLK) and EN = '1' then
            at := number_of(ADDR);
            if SSR = '1' then
                value <= low_bits(SRVAL, 2);
            elsif WE /= '1' or WRITE_MODE = "READ_FIRST" then
                value <= data(at * 2 + 1 downto at * 2);
            elsif WRITE_MODE = "WRITE_FIRST" then
                value <= DI;
            end if;
            if WE = '1' then
                data(at * 2 + 1 downto at * 2) <= DI;
            end if;
        end if;
    end process;

    DO <= value(1 downto 0);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity RAMB16_S4 is
    generic (
        INIT : bit_vector := X"0";
        SRVAL : bit_vector := X"0";
        WRITE_MODE : string := "WRITE_FIRST";
        INIT_00 : bit_vector(255 downto 0) := (others => '0');
        INIT_01 : bit_vector(255 downto 0) := (others => '0');
        INIT_02 : bit_vector(255 downto 0) := (others => '0');
        INIT_03 : bit_vector(255 downto 0) := (others => '0');
        INIT_04 : bit_vector(255 downto 0) := (others => '0');
        INIT_05 : bit_vector(255 downto 0) := (others => '0');
        INIT_06 : bit_vector(255 downto 0) := (others => '0');
        INIT_07 : bit_vector(255 downto 0) := (others => '0');
        INIT_08 : bit_vector(255 downto 0) := (others => '0');
        INIT_09 : bit_vector(255 downto 0) := (others => '0');
        INIT_0A : bit_vector(255 downto 0) := (others => '0');
        INIT_0B : bit_vector(255 downto 0) := (others => '0');
        INIT_0C : bit_vector(255 downto 0) := (others => '0');
        INIT_0D : bit_vector(255 downto 0) := (others => '0');
        INIT_0E : bit_vector(255 downto 0) := (others => '0');
        INIT_0F : bit_vector(255 downto 0) := (others => '0');
        INIT_10 : bit_vector(255 downto 0) := (others => '0');
        INIT_11 : bit_vector(255 downto 0) := (others => '0');
        INIT_12 : bit_vector(255 downto 0) := (others => '0');
        INIT_13 : bit_vector(255 downto 0) := (others => '0');
        INIT_14 : bit_vector(255 downto 0) := (others => '0');
        INIT_15 : bit_vector(255 downto 0) := (others => '0');
        INIT_16 : bit_vector(255 downto 0) := (others => '0');
        INIT_17 : bit_vector(255 downto 0) := (others => '0');
        INIT_18 : bit_vector(255 downto 0) := (others => '0');
        INIT_19 : bit_vector(255 downto 0) := (others => '0');
        INIT_1A : bit_vector(255 downto 0) := (others => '0');
        INIT_1B : bit_vector(255 downto 0) := (others => '0');
        INIT_1C : bit_vector(255 downto 0) := (others => '0');
        INIT_1D : bit_vector(255 downto 0) := (others => '0');
        INIT_1E : bit_vector(255 downto 0) := (others => '0');
        INIT_1F : bit_vector(255 downto 0) := (others => '0');
        INIT_20 : bit_vector(255 downto 0) := (others => '0');
        INIT_21 : bit_vector(255 downto 0) := (others => '0');
        INIT_22 : bit_vector(255 downto 0) := (others => '0');
        INIT_23 : bit_vector(255 downto 0) := (others => '0');
        INIT_24 : bit_vector(255 downto 0) := (others => '0');
        INIT_25 : bit_vector(255 downto 0) := (others => '0');
        INIT_26 : bit_vector(255 downto 0) := (others => '0');
        INIT_27 : bit_vector(255 downto 0) := (others => '0');
        INIT_28 : bit_vector(255 downto 0) := (others => '0');
        INIT_29 : bit_vector(255 downto 0) := (others => '0');
        INIT_2A : bit_vector(255 downto 0) := (others => '0');
        INIT_2B : bit_vector(255 downto 0) := (others => '0');
        INIT_2C : bit_vector(255 downto 0) := (others => '0');
        INIT_2D : bit_vector(255 downto 0) := (others => '0');
        INIT_2E : bit_vector(255 downto 0) := (others => '0');
        INIT_2F : bit_vector(255 downto 0) := (others => '0');
        INIT_30 : bit_vector(255 downto 0) := (others => '0');
        INIT_31 : bit_vector(255 downto 0) := (others => '0');
        INIT_32 : bit_vector(255 downto 0) := (others => '0');
        INIT_33 : bit_vector(255 downto 0) := (others => '0');
        INIT_34 : bit_vector(255 downto 0) := (others => '0');
        INIT_35 : bit_vector(255 downto 0) := (others => '0');
        INIT_36 : bit_vector(255 downto 0) := (others => '0');
        INIT_37 : bit_vector(255 downto 0) := (others => '0');
        INIT_38 : bit_vector(255 downto 0) := (others => '0');
        INIT_39 : bit_vector(255 downto 0) := (others => '0');
        INIT_3A : bit_vector(255 downto 0) := (others => '0');
        INIT_3B : bit_vector(255 downto 0) := (others => '0');
        INIT_3C : bit_vector(255 downto 0) := (others => '0');
        INIT_3D : bit_vector(255 downto 0) := (others => '0');
        INIT_3E : bit_vector(255 downto 0) := (others => '0');
        INIT_3F : bit_vector(255 downto 0) := (others => '0')
    );
    port (
        DO : out std_logic_vector(3 downto 0);
        ADDR : in  std_logic_vector(11 downto 0);
        CLK : in  std_logic;
        DI : in  std_logic_vector(3 downto 0);
        EN : in  std_logic;
        SSR : in  std_logic;
        WE : in  std_logic
    );
end entity RAMB16_S4;

architecture model of RAMB16_S4 is
    constant first : bit_vector(16383 downto 0) :=
        INIT_3F & INIT_3E & INIT_3D & INIT_3C & INIT_3B & INIT_3A & INIT_39 & INIT_38
        & INIT_37 & INIT_36 & INIT_35 & INIT_34 & INIT_33 & INIT_32 & INIT_31 & INIT_30
        & INIT_2F & INIT_2E & INIT_2D & INIT_2C & INIT_2B & INIT_2A & INIT_29 & INIT_28
        & INIT_27 & INIT_26 & INIT_25 & INIT_24 & INIT_23 & INIT_22 & INIT_21 & INIT_20
        & INIT_1F & INIT_1E & INIT_1D & INIT_1C & INIT_1B & INIT_1A & INIT_19 & INIT_18
        & INIT_17 & INIT_16 & INIT_15 & INIT_14 & INIT_13 & INIT_12 & INIT_11 & INIT_10
        & INIT_0F & INIT_0E & INIT_0D & INIT_0C & INIT_0B & INIT_0A & INIT_09 & INIT_08
        & INIT_07 & INIT_06 & INIT_05 & INIT_04 & INIT_03 & INIT_02 & INIT_01 & INIT_00;
    signal data : std_logic_vector(16383 downto 0) := to_stdlogicvector(first);
    signal value : std_logic_vector(3 downto 0) := low_bits(INIT, 4);
begin
    process (CLK)
        variable at : natural;
    begin
        if rising_edge(CLK) and EN = '1' then
            at := number_of(ADDR);
            if SSR = '1' then
                value <= low_bits(SRVAL, 4);
            elsif WE /= '1' or WRITE_MODE = "READ_FIRST" then
                value <= data(at * 4 + 3 downto at * 4);
            elsif WRITE_MODE = "WRITE_FIRST" then
                value <= DI;
            end if;
            if WE = '1' then
                data(at * 4 + 3 downto at * 4) <= DI;
            end if;
        end if;
    end process;

    DO <= value(3 downto 0);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity RAMB16_S9 is
    generic (
        INIT : bit_vector := X"000";
        SRVAL : bit_vector := X"000";
        WRITE_MODE : string := "WRITE_FIRST";
        INIT_00 : bit_vector(255 downto 0) := (others => '0');
        INIT_01 : bit_vector(255 downto 0) := (others => '0');
        INIT_02 : bit_vector(255 downto 0) := (others => '0');
        INIT_03 : bit_vector(255 downto 0) := (others => '0');
        INIT_04 : bit_vector(255 downto 0) := (others => '0');
        INIT_05 : bit_vector(255 downto 0) := (others => '0');
        INIT_06 : bit_vector(255 downto 0) := (others => '0');
        INIT_07 : bit_vector(255 downto 0) := (others => '0');
        INIT_08 : bit_vector(255 downto 0) := (others => '0');
        INIT_09 : bit_vector(255 downto 0) := (others => '0');
        INIT_0A : bit_vector(255 downto 0) := (others => '0');
        INIT_0B : bit_vector(255 downto 0) := (others => '0');
        INIT_0C : bit_vector(255 downto 0) := (others => '0');
        INIT_0D : bit_vector(255 downto 0) := (others => '0');
        INIT_0E : bit_vector(255 downto 0) := (others => '0');
        INIT_0F : bit_vector(255 downto 0) := (others => '0');
        INIT_10 : bit_vector(255 downto 0) := (others => '0');
        INIT_11 : bit_vector(255 downto 0) := (others => '0');
        INIT_12 : bit_vector(255 downto 0) := (others => '0');
        INIT_13 : bit_vector(255 downto 0) := (others => '0');
        INIT_14 : bit_vector(255 downto 0) := (others => '0');
        INIT_15 : bit_vector(255 downto 0) := (others => '0');
        INIT_16 : bit_vector(255 downto 0) := (others => '0');
        INIT_17 : bit_vector(255 downto 0) := (others => '0');
        INIT_18 : bit_vector(255 downto 0) := (others => '0');
        INIT_19 : bit_vector(255 downto 0) := (others => '0');
        INIT_1A : bit_vector(255 downto 0) := (others => '0');
        INIT_1B : bit_vector(255 downto 0) := (others => '0');
        INIT_1C : bit_vector(255 downto 0) := (others => '0');
        INIT_1D : bit_vector(255 downto 0) := (others => '0');
        INIT_1E : bit_vector(255 downto 0) := (others => '0');
        INIT_1F : bit_vector(255 downto 0) := (others => '0');
        INIT_20 : bit_vector(255 downto 0) := (others => '0');
        INIT_21 : bit_vector(255 downto 0) := (others => '0');
        INIT_22 : bit_vector(255 downto 0) := (others => '0');
        INIT_23 : bit_vector(255 downto 0) := (others => '0');
        INIT_24 : bit_vector(255 downto 0) := (others => '0');
        INIT_25 : bit_vector(255 downto 0) := (others => '0');
        INIT_26 : bit_vector(255 downto 0) := (others => '0');
        INIT_27 : bit_vector(255 downto 0) := (others => '0');
        INIT_28 : bit_vector(255 downto 0) := (others => '0');
        INIT_29 : bit_vector(255 downto 0) := (others => '0');
        INIT_2A : bit_vector(255 downto 0) := (others => '0');
        INIT_2B : bit_vector(255 downto 0) := (others => '0');
        INIT_2C : bit_vector(255 downto 0) := (others => '0');
        INIT_2D : bit_vector(255 downto 0) := (others => '0');
        INIT_2E : bit_vector(255 downto 0) := (others => '0');
        INIT_2F : bit_vector(255 downto 0) := (others => '0');
        INIT_30 : bit_vector(255 downto 0) := (others => '0');
        INIT_31 : bit_vector(255 downto 0) := (others => '0');
        INIT_32 : bit_vector(255 downto 0) := (others => '0');
        INIT_33 : bit_vector(255 downto 0) := (others => '0');
        INIT_34 : bit_vector(255 downto 0) := (others => '0');
        INIT_35 : bit_vector(255 downto 0) := (others => '0');
        INIT_36 : bit_vector(255 downto 0) := (others => '0');
        INIT_37 : bit_vector(255 downto 0) := (others => '0');
        INIT_38 : bit_vector(255 downto 0) := (others => '0');
        INIT_39 : bit_vector(255 downto 0) := (others => '0');
        INIT_3A : bit_vector(255 downto 0) := (others => '0');
        INIT_3B : bit_vector(255 downto 0) := (others => '0');
        INIT_3C : bit_vector(255 downto 0) := (others => '0');
        INIT_3D : bit_vector(255 downto 0) := (others => '0');
        INIT_3E : bit_vector(255 downto 0) := (others => '0');
        INIT_3F : bit_vector(255 downto 0) := (others => '0');
        INITP_00 : bit_vector(255 downto 0) := (others => '0');
        INITP_01 : bit_vector(255 downto 0) := (others => '0');
        INITP_02 : bit_vector(255 downto 0) := (others => '0');
        INITP_03 : bit_vector(255 downto 0) := (others => '0');
        INITP_04 : bit_vector(255 downto 0) := (others => '0');
        INITP_05 : bit_vector(255 downto 0) := (others => '0');
        INITP_06 : bit_vector(255 downto 0) := (others => '0');
        INITP_07 : bit_vector(255 downto 0) := (others => '0')
    );
    port (
        DO : out std_logic_vector(7 downto 0);
        DOP : out std_logic_vector(0 downto 0);
        ADDR : in  std_logic_vector(10 downto 0);
        CLK : in  std_logic;
        DI : in  std_logic_vector(7 downto 0);
        DIP : in  std_logic_vector(0 downto 0);
        EN : in  std_logic;
        SSR : in  std_logic;
        WE : in  std_logic
    );
end entity RAMB16_S9;

architecture model of RAMB16_S9 is
    constant first : bit_vector(16383 downto 0) :=
        INIT_3F & INIT_3E & INIT_3D & INIT_3C & INIT_3B & INIT_3A & INIT_39 & INIT_38
        & INIT_37 & INIT_36 & INIT_35 & INIT_34 & INIT_33 & INIT_32 & INIT_31 & INIT_30
        & INIT_2F & INIT_2E & INIT_2D & INIT_2C & INIT_2B & INIT_2A & INIT_29 & INIT_28
        & INIT_27 & INIT_26 & INIT_25 & INIT_24 & INIT_23 & INIT_22 & INIT_21 & INIT_20
        & INIT_1F & INIT_1E & INIT_1D & INIT_1C & INIT_1B & INIT_1A & INIT_19 & INIT_18
        & INIT_17 & INIT_16 & INIT_15 & INIT_14 & INIT_13 & INIT_12 & INIT_11 & INIT_10
        & INIT_0F & INIT_0E & INIT_0D & INIT_0C & INIT_0B & INIT_0A & INIT_09 & INIT_08
        & INIT_07 & INIT_06 & INIT_05 & INIT_04 & INIT_03 & INIT_02 & INIT_01 & INIT_00;
    signal data : std_logic_vector(16383 downto 0) := to_stdlogicvector(first);
    signal value : std_logic_vector(8 downto 0) := low_bits(INIT, 9);
    constant first_parity : bit_vector(2047 downto 0) :=
        INITP_07 & INITP_06 & INITP_05 & INITP_04 & INITP_03 & INITP_02 & INITP_01 & INITP_00;
    signal parity : std_logic_vector(2047 downto 0) := to_stdlogicvector(first_parity);
begin
    process (CLK)
        variable at : natural;
    begin
        if rising_edge(CLK) and EN = '1' then
            at := number_of(ADDR);
            if SSR = '1' then
                value <= low_bits(SRVAL, 9);
            elsif WE /= '1' or WRITE_MODE = "READ_FIRST" then
                value <= parity(at * 1 + 0 downto at * 1) & data(at * 8 + 7 downto at * 8);
            elsif WRITE_MODE = "WRITE_FIRST" then
                value <= DIP & DI;
            end if;
            if WE = '1' then
                data(at * 8 + 7 downto at * 8) <= DI;
                parity(at * 1 + 0 downto at * 1) <= DIP;
            end if;
        end if;
    end process;

    DO <= value(7 downto 0);
    DOP <= value(8 downto 8);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity RAMB16_S18 is
    generic (
        INIT : bit_vector := X"00000";
        SRVAL : bit_vector := X"00000";
        WRITE_MODE : string := "WRITE_FIRST";
        INIT_00 : bit_vector(255 downto 0) := (others => '0');
        INIT_01 : bit_vector(255 downto 0) := (others => '0');
        INIT_02 : bit_vector(255 downto 0) := (others => '0');
        INIT_03 : bit_vector(255 downto 0) := (others => '0');
        INIT_04 : bit_vector(255 downto 0) := (others => '0');
        INIT_05 : bit_vector(255 downto 0) := (others => '0');
        INIT_06 : bit_vector(255 downto 0) := (others => '0');
        INIT_07 : bit_vector(255 downto 0) := (others => '0');
        INIT_08 : bit_vector(255 downto 0) := (others => '0');
        INIT_09 : bit_vector(255 downto 0) := (others => '0');
        INIT_0A : bit_vector(255 downto 0) := (others => '0');
        INIT_0B : bit_vector(255 downto 0) := (others => '0');
        INIT_0C : bit_vector(255 downto 0) := (others => '0');
        INIT_0D : bit_vector(255 downto 0) := (others => '0');
        INIT_0E : bit_vector(255 downto 0) := (others => '0');
        INIT_0F : bit_vector(255 downto 0) := (others => '0');
        INIT_10 : bit_vector(255 downto 0) := (others => '0');
        INIT_11 : bit_vector(255 downto 0) := (others => '0');
        INIT_12 : bit_vector(255 downto 0) := (others => '0');
        INIT_13 : bit_vector(255 downto 0) := (others => '0');
        INIT_14 : bit_vector(255 downto 0) := (others => '0');
        INIT_15 : bit_vector(255 downto 0) := (others => '0');
        INIT_16 : bit_vector(255 downto 0) := (others => '0');
        INIT_17 : bit_vector(255 downto 0) := (others => '0');
        INIT_18 : bit_vector(255 downto 0) := (others => '0');
        INIT_19 : bit_vector(255 downto 0) := (others => '0');
        INIT_1A : bit_vector(255 downto 0) := (others => '0');
        INIT_1B : bit_vector(255 downto 0) := (others => '0');
        INIT_1C : bit_vector(255 downto 0) := (others => '0');
        INIT_1D : bit_vector(255 downto 0) := (others => '0');
        INIT_1E : bit_vector(255 downto 0) := (others => '0');
        INIT_1F : bit_vector(255 downto 0) := (others => '0');
        INIT_20 : bit_vector(255 downto 0) := (others => '0');
        INIT_21 : bit_vector(255 downto 0) := (others => '0');
        INIT_22 : bit_vector(255 downto 0) := (others => '0');
        INIT_23 : bit_vector(255 downto 0) := (others => '0');
        INIT_24 : bit_vector(255 downto 0) := (others => '0');
        INIT_25 : bit_vector(255 downto 0) := (others => '0');
        INIT_26 : bit_vector(255 downto 0) := (others => '0');
        INIT_27 : bit_vector(255 downto 0) := (others => '0');
        INIT_28 : bit_vector(255 downto 0) := (others => '0');
        INIT_29 : bit_vector(255 downto 0) := (others => '0');
        INIT_2A : bit_vector(255 downto 0) := (others => '0');
        INIT_2B : bit_vector(255 downto 0) := (others => '0');
        INIT_2C : bit_vector(255 downto 0) := (others => '0');
        INIT_2D : bit_vector(255 downto 0) := (others => '0');
        INIT_2E : bit_vector(255 downto 0) := (others => '0');
        INIT_2F : bit_vector(255 downto 0) := (others => '0');
        INIT_30 : bit_vector(255 downto 0) := (others => '0');
        INIT_31 : bit_vector(255 downto 0) := (others => '0');
        INIT_32 : bit_vector(255 downto 0) := (others => '0');
        INIT_33 : bit_vector(255 downto 0) := (others => '0');
        INIT_34 : bit_vector(255 downto 0) := (others => '0');
        INIT_35 : bit_vector(255 downto 0) := (others => '0');
        INIT_36 : bit_vector(255 downto 0) := (others => '0');
        INIT_37 : bit_vector(255 downto 0) := (others => '0');
        INIT_38 : bit_vector(255 downto 0) := (others => '0');
        INIT_39 : bit_vector(255 downto 0) := (others => '0');
        INIT_3A : bit_vector(255 downto 0) := (others => '0');
        INIT_3B : bit_vector(255 downto 0) := (others => '0');
        INIT_3C : bit_vector(255 downto 0) := (others => '0');
        INIT_3D : bit_vector(255 downto 0) := (others => '0');
        INIT_3E : bit_vector(255 downto 0) := (others => '0');
        INIT_3F : bit_vector(255 downto 0) := (others => '0');
        INITP_00 : bit_vector(255 downto 0) := (others => '0');
        INITP_01 : bit_vector(255 downto 0) := (others => '0');
        INITP_02 : bit_vector(255 downto 0) := (others => '0');
        INITP_03 : bit_vector(255 downto 0) := (others => '0');
        INITP_04 : bit_vector(255 downto 0) := (others => '0');
        INITP_05 : bit_vector(255 downto 0) := (others => '0');
        INITP_06 : bit_vector(255 downto 0) := (others => '0');
        INITP_07 : bit_vector(255 downto 0) := (others => '0')
    );
    port (
        DO : out std_logic_vector(15 downto 0);
        DOP : out std_logic_vector(1 downto 0);
        ADDR : in  std_logic_vector(9 downto 0);
        CLK : in  std_logic;
        DI : in  std_logic_vector(15 downto 0);
        DIP : in  std_logic_vector(1 downto 0);
        EN : in  std_logic;
        SSR : in  std_logic;
        WE : in  std_logic
    );
end entity RAMB16_S18;

architecture model of RAMB16_S18 is
    constant first : bit_vector(16383 downto 0) :=
        INIT_3F & INIT_3E & INIT_3D & INIT_3C & INIT_3B & INIT_3A & INIT_39 & INIT_38
        & INIT_37 & INIT_36 & INIT_35 & INIT_34 & INIT_33 & INIT_32 & INIT_31 & INIT_30
        & INIT_2F & INIT_2E & INIT_2D & INIT_2C & INIT_2B & INIT_2A & INIT_29 & INIT_28
        & INIT_27 & INIT_26 & INIT_25 & INIT_24 & INIT_23 & INIT_22 & INIT_21 & INIT_20
        & INIT_1F & INIT_1E & INIT_1D & INIT_1C & INIT_1B & INIT_1A & INIT_19 & INIT_18
        & INIT_17 & INIT_16 & INIT_15 & INIT_14 & INIT_13 & INIT_12 & INIT_11 & INIT_10
        & INIT_0F & INIT_0E & INIT_0D & INIT_0C & INIT_0B & INIT_0A & INIT_09 & INIT_08
        & INIT_07 & INIT_06 & INIT_05 & INIT_04 & INIT_03 & INIT_02 & INIT_01 & INIT_00;
    signal data : std_logic_vector(16383 downto 0) := to_stdlogicvector(first);
    signal value : std_logic_vector(17 downto 0) := low_bits(INIT, 18);
    constant first_parity : bit_vector(2047 downto 0) :=
        INITP_07 & INITP_06 & INITP_05 & INITP_04 & INITP_03 & INITP_02 & INITP_01 & INITP_00;
    signal parity : std_logic_vector(2047 downto 0) := to_stdlogicvector(first_parity);
begin
    process (CLK)
        variable at : natural;
    begin
        if rising_edge(CLK) and EN = '1' then
            at := number_of(ADDR);
            if SSR = '1' then
                value <= low_bits(SRVAL, 18);
            elsif WE /= '1' or WRITE_MODE = "READ_FIRST" then
                value <= parity(at * 2 + 1 downto at * 2) & data(at * 16 + 15 downto at * 16);
            elsif WRITE_MODE = "WRITE_FIRST" then
                value <= DIP & DI;
            end if;
            if WE = '1' then
                data(at * 16 + 15 downto at * 16) <= DI;
                parity(at * 2 + 1 downto at * 2) <= DIP;
            end if;
        end if;
    end process;

    DO <= value(15 downto 0);
    DOP <= value(17 downto 16);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity RAMB16_S36 is
    generic (
        INIT : bit_vector := X"000000000";
        SRVAL : bit_vector := X"000000000";
        WRITE_MODE : string := "WRITE_FIRST";
        INIT_00 : bit_vector(255 downto 0) := (others => '0');
        INIT_01 : bit_vector(255 downto 0) := (others => '0');
        INIT_02 : bit_vector(255 downto 0) := (others => '0');
        INIT_03 : bit_vector(255 downto 0) := (others => '0');
        INIT_04 : bit_vector(255 downto 0) := (others => '0');
        INIT_05 : bit_vector(255 downto 0) := (others => '0');
        INIT_06 : bit_vector(255 downto 0) := (others => '0');
        INIT_07 : bit_vector(255 downto 0) := (others => '0');
        INIT_08 : bit_vector(255 downto 0) := (others => '0');
        INIT_09 : bit_vector(255 downto 0) := (others => '0');
        INIT_0A : bit_vector(255 downto 0) := (others => '0');
        INIT_0B : bit_vector(255 downto 0) := (others => '0');
        INIT_0C : bit_vector(255 downto 0) := (others => '0');
        INIT_0D : bit_vector(255 downto 0) := (others => '0');
        INIT_0E : bit_vector(255 downto 0) := (others => '0');
        INIT_0F : bit_vector(255 downto 0) := (others => '0');
        INIT_10 : bit_vector(255 downto 0) := (others => '0');
        INIT_11 : bit_vector(255 downto 0) := (others => '0');
        INIT_12 : bit_vector(255 downto 0) := (others => '0');
        INIT_13 : bit_vector(255 downto 0) := (others => '0');
        INIT_14 : bit_vector(255 downto 0) := (others => '0');
        INIT_15 : bit_vector(255 downto 0) := (others => '0');
        INIT_16 : bit_vector(255 downto 0) := (others => '0');
        INIT_17 : bit_vector(255 downto 0) := (others => '0');
        INIT_18 : bit_vector(255 downto 0) := (others => '0');
        INIT_19 : bit_vector(255 downto 0) := (others => '0');
        INIT_1A : bit_vector(255 downto 0) := (others => '0');
        INIT_1B : bit_vector(255 downto 0) := (others => '0');
        INIT_1C : bit_vector(255 downto 0) := (others => '0');
        INIT_1D : bit_vector(255 downto 0) := (others => '0');
        INIT_1E : bit_vector(255 downto 0) := (others => '0');
        INIT_1F : bit_vector(255 downto 0) := (others => '0');
        INIT_20 : bit_vector(255 downto 0) := (others => '0');
        INIT_21 : bit_vector(255 downto 0) := (others => '0');
        INIT_22 : bit_vector(255 downto 0) := (others => '0');
        INIT_23 : bit_vector(255 downto 0) := (others => '0');
        INIT_24 : bit_vector(255 downto 0) := (others => '0');
        INIT_25 : bit_vector(255 downto 0) := (others => '0');
        INIT_26 : bit_vector(255 downto 0) := (others => '0');
        INIT_27 : bit_vector(255 downto 0) := (others => '0');
        INIT_28 : bit_vector(255 downto 0) := (others => '0');
        INIT_29 : bit_vector(255 downto 0) := (others => '0');
        INIT_2A : bit_vector(255 downto 0) := (others => '0');
        INIT_2B : bit_vector(255 downto 0) := (others => '0');
        INIT_2C : bit_vector(255 downto 0) := (others => '0');
        INIT_2D : bit_vector(255 downto 0) := (others => '0');
        INIT_2E : bit_vector(255 downto 0) := (others => '0');
        INIT_2F : bit_vector(255 downto 0) := (others => '0');
        INIT_30 : bit_vector(255 downto 0) := (others => '0');
        INIT_31 : bit_vector(255 downto 0) := (others => '0');
        INIT_32 : bit_vector(255 downto 0) := (others => '0');
        INIT_33 : bit_vector(255 downto 0) := (others => '0');
        INIT_34 : bit_vector(255 downto 0) := (others => '0');
        INIT_35 : bit_vector(255 downto 0) := (others => '0');
        INIT_36 : bit_vector(255 downto 0) := (others => '0');
        INIT_37 : bit_vector(255 downto 0) := (others => '0');
        INIT_38 : bit_vector(255 downto 0) := (others => '0');
        INIT_39 : bit_vector(255 downto 0) := (others => '0');
        INIT_3A : bit_vector(255 downto 0) := (others => '0');
        INIT_3B : bit_vector(255 downto 0) := (others => '0');
        INIT_3C : bit_vector(255 downto 0) := (others => '0');
        INIT_3D : bit_vector(255 downto 0) := (others => '0');
        INIT_3E : bit_vector(255 downto 0) := (others => '0');
        INIT_3F : bit_vector(255 downto 0) := (others => '0');
        INITP_00 : bit_vector(255 downto 0) := (others => '0');
        INITP_01 : bit_vector(255 downto 0) := (others => '0');
        INITP_02 : bit_vector(255 downto 0) := (others => '0');
        INITP_03 : bit_vector(255 downto 0) := (others => '0');
        INITP_04 : bit_vector(255 downto 0) := (others => '0');
        INITP_05 : bit_vector(255 downto 0) := (others => '0');
        INITP_06 : bit_vector(255 downto 0) := (others => '0');
        INITP_07 : bit_vector(255 downto 0) := (others => '0')
    );
    port (
        DO : out std_logic_vector(31 downto 0);
        DOP : out std_logic_vector(3 downto 0);
        ADDR : in  std_logic_vector(8 downto 0);
        CLK : in  std_logic;
        DI : in  std_logic_vector(31 downto 0);
        DIP : in  std_logic_vector(3 downto 0);
        EN : in  std_logic;
        SSR : in  std_logic;
        WE : in  std_logic
    );
end entity RAMB16_S36;

architecture model of RAMB16_S36 is
    constant first : bit_vector(16383 downto 0) :=
        INIT_3F & INIT_3E & INIT_3D & INIT_3C & INIT_3B & INIT_3A & INIT_39 & INIT_38
        & INIT_37 & INIT_36 & INIT_35 & INIT_34 & INIT_33 & INIT_32 & INIT_31 & INIT_30
        & INIT_2F & INIT_2E & INIT_2D & INIT_2C & INIT_2B & INIT_2A & INIT_29 & INIT_28
        & INIT_27 & INIT_26 & INIT_25 & INIT_24 & INIT_23 & INIT_22 & INIT_21 & INIT_20
        & INIT_1F & INIT_1E & INIT_1D & INIT_1C & INIT_1B & INIT_1A & INIT_19 & INIT_18
        & INIT_17 & INIT_16 & INIT_15 & INIT_14 & INIT_13 & INIT_12 & INIT_11 & INIT_10
        & INIT_0F & INIT_0E & INIT_0D & INIT_0C & INIT_0B & INIT_0A & INIT_09 & INIT_08
        & INIT_07 & INIT_06 & INIT_05 & INIT_04 & INIT_03 & INIT_02 & INIT_01 & INIT_00;
    signal data : std_logic_vector(16383 downto 0) := to_stdlogicvector(first);
    signal value : std_logic_vector(35 downto 0) := low_bits(INIT, 36);
    constant first_parity : bit_vector(2047 downto 0) :=
        INITP_07 & INITP_06 & INITP_05 & INITP_04 & INITP_03 & INITP_02 & INITP_01 & INITP_00;
    signal parity : std_logic_vector(2047 downto 0) := to_stdlogicvector(first_parity);
begin
    process (CLK)
        variable at : natural;
    begin
        if rising_edge(CLK) and EN = '1' then
            at := number_of(ADDR);
            if SSR = '1' then
                value <= low_bits(SRVAL, 36);
            elsif WE /= '1' or WRITE_MODE = "READ_FIRST" then
                value <= parity(at * 4 + 3 downto at * 4) & data(at * 32 + 31 downto at * 32);
            elsif WRITE_MODE = "WRITE_FIRST" then
                value <= DIP & DI;
            end if;
            if WE = '1' then
                data(at * 32 + 31 downto at * 32) <= DI;
                parity(at * 4 + 3 downto at * 4) <= DIP;
            end if;
        end if;
    end process;

    DO <= value(31 downto 0);
    DOP <= value(35 downto 32);
end architecture model;

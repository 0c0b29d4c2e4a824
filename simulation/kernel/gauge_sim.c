// SPDX-License-Identifier: GPL-2.0-only
/* The kernel's style: clang-format knows another. */
/* clang-format off */
/*
 * A BQ27542 fuel gauge without the chip: an I2C bus of its own answers as one.
 * Once "bq27542 0x55" is written to the new_device of that bus, the kernel's
 * driver bq27xxx_battery serves it as /sys/class/power_supply/bq27542-0.
 * lifetime_data is added there, the record that only vendors' drivers offer.
 *
 * Each file in /sys/devices/gauge-sim is a number: a register of the chip in
 * the chip's own unit, or a fault. A fault that is an error takes its errno as
 * a positive number, and 0 means none.
 */

#include <linux/delay.h>
#include <linux/device.h>
#include <linux/i2c.h>
#include <linux/module.h>
#include <linux/mutex.h>
#include <linux/string.h>
#include <linux/sysfs.h>

#define CHIP_ADDRESS 0x55

/* The first gauge of its kind; the driver counts them. */
#define SUPPLY_NAME "bq27542-0"

struct knob {
	struct device_attribute attr;
	int lowest;
	int highest;
	int value;
	u8 address;	/* of a register */
};

static ssize_t knob_show(struct device *dev, struct device_attribute *attr,
			 char *buf)
{
	struct knob *knob = container_of(attr, struct knob, attr);

	return sysfs_emit(buf, "%d\n", READ_ONCE(knob->value));
}

static ssize_t knob_store(struct device *dev, struct device_attribute *attr,
			  const char *buf, size_t count)
{
	struct knob *knob = container_of(attr, struct knob, attr);
	int value;
	int err = kstrtoint(buf, 0, &value);

	if (err)
		return err;
	if (value < knob->lowest || value > knob->highest)
		return -ERANGE;
	WRITE_ONCE(knob->value, value);
	return count;
}

#define KNOB(_name, _lowest, _highest, _value, _address) {	\
	.attr = __ATTR(_name, 0644, knob_show, knob_store),	\
	.lowest = _lowest,					\
	.highest = _highest,					\
	.value = _value,					\
	.address = _address,					\
}

/* Two bytes, signed or not as the register's meaning has it. */
#define REGISTER(_name, _address, _value) \
	KNOB(_name, S16_MIN, U16_MAX, _value, _address)

static struct knob registers[] = {
	REGISTER(temperature, 0x06, 2982),		/* 0.1 K */
	REGISTER(voltage, 0x08, 3786),			/* mV */
	REGISTER(flags, 0x0a, 0x0001),			/* discharging */
	REGISTER(nominal_available_capacity, 0x0c, 1553), /* mAh */
	REGISTER(remaining_capacity, 0x10, 1523),	/* mAh */
	REGISTER(full_charge_capacity, 0x12, 2058),	/* mAh */
	REGISTER(average_current, 0x14, -412),		/* mA */
	REGISTER(time_to_empty, 0x16, 226),		/* min; 65535: none */
	REGISTER(average_power, 0x24, -156),		/* 10 mW */
	REGISTER(cycle_count, 0x2a, 96),
	REGISTER(state_of_charge, 0x2c, 74),		/* % */
	REGISTER(design_capacity, 0x3c, 2100),		/* mAh */
};

static u8 record[32] = {
	0x09, 0x02,	/* highest temperature, 52.1 degrees C */
	0xde, 0xff,	/* lowest temperature, -3.4 degrees C */
	0xf6, 0x10,	/* highest pack voltage, 4342 mV */
	0xab, 0x0b,	/* lowest pack voltage, 2987 mV */
	0x5c, 0x08,	/* highest charge current, 2140 mA */
	0xaf, 0xf8,	/* highest discharge current, -1873 mA */
};

static DEFINE_MUTEX(record_lock);

enum fault {
	BUS_ERROR,		/* of every transfer */
	BUS_DELAY,		/* of every transfer, in ms */
	RECORD_READ_ERROR,
	RECORD_READ_BYTES,	/* what a read gives before the error */
	RECORD_LENGTH,		/* where the record ends */
	RECORD_WRITE_ERROR,
};

static struct knob faults[] = {
	[BUS_ERROR] = KNOB(bus_error, 0, MAX_ERRNO, 0, 0),
	[BUS_DELAY] = KNOB(bus_delay_ms, 0, 10000, 0, 0),
	[RECORD_READ_ERROR] = KNOB(record_read_error, 0, MAX_ERRNO, 0, 0),
	[RECORD_READ_BYTES] =
		KNOB(record_read_bytes, 0, sizeof(record), 0, 0),
	[RECORD_LENGTH] =
		KNOB(record_length, 0, sizeof(record), sizeof(record), 0),
	[RECORD_WRITE_ERROR] = KNOB(record_write_error, 0, MAX_ERRNO, 0, 0),
};

static int fault(enum fault which)
{
	return READ_ONCE(faults[which].value);
}

/* What befalls everything that goes over the bus. */
static int bus_access(void)
{
	/* msleep() would make a few milliseconds many. */
	fsleep(fault(BUS_DELAY) * USEC_PER_MSEC);
	return -fault(BUS_ERROR);
}

/* Bytes outside of the table are 0. */
static void chip_read(u8 address, u8 *buf, u16 len)
{
	int i;

	memset(buf, 0, len);
	for (i = 0; i < ARRAY_SIZE(registers); i++) {
		int value = READ_ONCE(registers[i].value);
		u8 low = registers[i].address - address;
		u8 high = low + 1;

		if (low < len)
			buf[low] = value & 0xff;
		if (high < len)
			buf[high] = (value >> 8) & 0xff;
	}
}

/*
 * A write names the register that the next read begins at. What follows in a
 * write is ignored: the driver changes nothing in a BQ27542.
 */
static int bus_transfer(struct i2c_adapter *adapter, struct i2c_msg *msgs,
			int count)
{
	static u8 address; /* the I2C core runs one transfer at a time */
	int err = bus_access();
	int i;

	if (err)
		return err;
	for (i = 0; i < count; i++) {
		if (msgs[i].addr != CHIP_ADDRESS)
			return -ENXIO;
		if (msgs[i].flags & I2C_M_RD)
			chip_read(address, msgs[i].buf, msgs[i].len);
		else if (msgs[i].len)
			address = msgs[i].buf[0];
	}
	return count;
}

static u32 bus_functionality(struct i2c_adapter *adapter)
{
	return I2C_FUNC_I2C | I2C_FUNC_SMBUS_EMUL;
}

static const struct i2c_algorithm bus_algorithm = {
	.master_xfer = bus_transfer,
	.functionality = bus_functionality,
};

static struct i2c_adapter bus = {
	.owner = THIS_MODULE,
	.name = "gauge-sim",
	.algo = &bus_algorithm,
};

static ssize_t record_read(struct file *file, struct kobject *kobj,
			   struct bin_attribute *attr, char *buf, loff_t offset,
			   size_t count)
{
	size_t length = fault(RECORD_LENGTH);
	ssize_t ret = bus_access();

	if (ret)
		return ret;
	if (fault(RECORD_READ_ERROR)) {
		length = min_t(size_t, length, fault(RECORD_READ_BYTES));
		if (offset >= length)
			return -fault(RECORD_READ_ERROR);
	}
	mutex_lock(&record_lock);
	ret = memory_read_from_buffer(buf, count, &offset, record, length);
	mutex_unlock(&record_lock);
	return ret;
}

static ssize_t record_write(struct file *file, struct kobject *kobj,
			    struct bin_attribute *attr, char *buf,
			    loff_t offset, size_t count)
{
	int err = bus_access();

	if (err)
		return err;
	if (offset || count != sizeof(record))
		return -EINVAL;
	if (fault(RECORD_WRITE_ERROR))
		return -fault(RECORD_WRITE_ERROR);
	mutex_lock(&record_lock);
	memcpy(record, buf, sizeof(record));
	mutex_unlock(&record_lock);
	return count;
}

/*
 * Without a size, for sysfs would cut a write that is too long down to it, and
 * so make it one that fits.
 */
static BIN_ATTR(lifetime_data, 0644, record_read, record_write, 0);

/*
 * The power supply comes and goes with its driver, and the record with it: the
 * removal of a device removes its files.
 */
static int bus_event(struct notifier_block *block, unsigned long event,
		     void *data)
{
	struct device *chip = data;
	struct device *supply;

	if (event != BUS_NOTIFY_BOUND_DRIVER || chip->parent != &bus.dev)
		return NOTIFY_DONE;
	supply = device_find_child_by_name(chip, SUPPLY_NAME);
	if (!supply) /* declared as another chip */
		return NOTIFY_DONE;
	if (sysfs_create_bin_file(&supply->kobj, &bin_attr_lifetime_data))
		dev_err(chip, "no lifetime_data\n");
	put_device(supply);
	return NOTIFY_OK;
}

static struct notifier_block bus_notifier = { .notifier_call = bus_event };
static struct device *simulation;

static int create_files(struct knob *knobs, int count)
{
	int err = 0;
	int i;

	for (i = 0; i < count && !err; i++)
		err = device_create_file(simulation, &knobs[i].attr);
	return err;
}

static int __init gauge_sim_init(void)
{
	int err;

	simulation = root_device_register("gauge-sim");
	if (IS_ERR(simulation))
		return PTR_ERR(simulation);
	err = create_files(registers, ARRAY_SIZE(registers));
	if (!err)
		err = create_files(faults, ARRAY_SIZE(faults));
	if (err)
		goto err_device;

	err = bus_register_notifier(&i2c_bus_type, &bus_notifier);
	if (err)
		goto err_device;
	bus.dev.parent = simulation;
	err = i2c_add_adapter(&bus);
	if (err)
		goto err_notifier;
	return 0;

err_notifier:
	bus_unregister_notifier(&i2c_bus_type, &bus_notifier);
err_device:
	root_device_unregister(simulation); /* and its files */
	return err;
}
module_init(gauge_sim_init);

static void __exit gauge_sim_exit(void)
{
	i2c_del_adapter(&bus);
	bus_unregister_notifier(&i2c_bus_type, &bus_notifier);
	root_device_unregister(simulation);
}
module_exit(gauge_sim_exit);

MODULE_AUTHOR("The FuelGauge authors");
MODULE_DESCRIPTION("Simulated BQ27542 fuel gauge");
MODULE_LICENSE("GPL");
